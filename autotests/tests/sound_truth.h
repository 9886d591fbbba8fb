// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// What the sound server of the virtual sound card tells of itself; nothing where it cannot be asked (Wine).
namespace sound_truth {

/// Whether it can be asked.
bool canTell();

/// Volume and mute state of every device, as text to compare.
std::string levels();

/// Turns every device down and mutes the sinks. A new card's devices are as loud as the module makes them, so that a volume
/// which is not put back would not show.
void turnDown();

/// How many streams of any program play or record.
int openStreamCount();

} // namespace sound_truth
