// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/precheck/virtual_devices.h"

#include <QList>
#include <QString>

#include <optional>

namespace host {

/// How one output or input stands at the moment.
struct EndpointStanding {
    QString name; ///< of an output as the sound library lists it
    QString id;   ///< the system's
    int percent = 0;
    bool isMuted = false;
    bool isDefault = false;
};

/// What the sound server, or the audio service of Windows, tells of its endpoints. Monitors have no volume here.
struct SoundState {
    bool isAnswering = false; ///< without an answer no device can be listed at all, which says nothing about the machine
    QList<EndpointStanding> endpoints;
    VirtualDevices virtualDevices;

    /// Nothing for a name or id that the system does not know.
    std::optional<EndpointStanding> output(const QString &name) const;
    std::optional<EndpointStanding> withId(const QString &id) const;
};

/// Looks only; some milliseconds, 2 s where the server does not answer, and 8 s at most. Any thread. With the sound library's
/// drivers "dummy" and "disk" there is nobody to ask: that counts as an answer without endpoints.
SoundState readSoundState();

/// Whether there is a sound server that answers, by the same rules.
bool isSoundServerAnswering();

/// Key of the reason why there is no output device: none was found, or nobody could be asked.
const char *noOutputReason();

/// The ids of the system's default output and input, where it has them and tells. Any thread.
QStringList readDefaultEndpoints();

} // namespace host
