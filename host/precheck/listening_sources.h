// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

/// A capture source as the listener offers it, and what the system says of it. Where it passes on what another source hears,
/// that one's mute and volume count as well: either makes it deaf.
struct ListeningSource {
    QString name;
    /// Outputs whose signal it delivers, as the sound library lists them; empty for one that hears the air, or something that
    /// the system does not tell.
    QStringList hearsOutputs;
    bool isVirtual = false; ///< no hardware stands behind it
    bool isMuted = false;
    float level = 1.0F; ///< 0.0 to 1.0

    bool isOpen() const;
};

/// Linux: all sources of the sound server, the monitors of outputs among them. A source that is made of another one, or an
/// output that plays through another one, is followed to its end. Windows: the capture endpoints; one called "Monitor of X", as
/// Wine calls them, hears X.
///
/// Nothing when the system does not answer, 2 s at most. Any thread.
std::optional<QList<ListeningSource>> readListeningSources();

/// Of that name, or for "loopback:X" whatever hears the output X. Null when there is none.
const ListeningSource *findListeningSource(const QList<ListeningSource> &sources, const QString &name);

/// Whether `source` hears another output than `device`, whose silence would be taken for the device's: by the system's word,
/// and where it has none by the source's name. One that only calls itself a monitor may hear anything. False for one that hears
/// the air.
bool hearsAnotherOutput(const std::optional<QList<ListeningSource>> &sources, const QString &source, const QString &device);

} // namespace host
