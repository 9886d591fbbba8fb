// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <SDL.h>

#include <functional>
#include <string>
#include <vector>

/// Stands between the module and the sound library, which does its real work: what is open, what was begun, and which calls
/// have not come back. Any thread.
namespace call_watch {

/// Once, before the module is used.
void install();

/// Told of every start of a device, on the thread that starts it: how many there were, this one included.
void onStart(std::function<void(int)> told);

/// The calls that have not returned, with the time that they have taken; empty when there are none.
std::string callsInProgress();

/// Devices that were opened and whose closing has not ended.
int openDeviceCount();
/// Whether the sound library has stopped a device before anybody began to close it.
bool isSomeDeviceStopped();
/// Calls that shut the sound library down.
int quitCount();
/// The digits whose clips were read, in order.
std::vector<int> digitsLoaded();
/// Forgets the digits.
void forgetDigits();

} // namespace call_watch
