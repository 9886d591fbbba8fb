// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

struct ListeningSource;

enum class Delivery { sound, zerosOnly, unknown };

/// Listens to a capture source until it delivers anything but zeros, for a second at most once it is open, and for three in
/// all. Turns an event loop. GUI thread only.
Delivery probeCapture(const QString &source);

/// Whether zeros of that source mean that it cannot hear. A microphone of hardware that is open always delivers noise; one that
/// does not is switched off, kept away by the system or dead, and nobody can tell which. But zeros are as they should be where
/// the source is a monitor of an idle output, where no hardware stands behind it, as in a null source, and where it is muted
/// or at zero, which the run itself changes.
bool mustDeliverNoise(const ListeningSource &source);

} // namespace host
