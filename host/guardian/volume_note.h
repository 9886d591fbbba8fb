// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/endpoint_volume.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

/// The bytes of a note that are read at most; the note of twenty endpoints has some 4000.
inline constexpr qint64 noteByteLimit = 256 * 1024;

/// The highest channel volume that a note may ask for, in the sound server's units (65536 is 100 %): 153 %, +11 dB, where the
/// mixers of the desktops end.
inline constexpr std::uint32_t channelVolumeLimit = 99957;

struct VolumeNote {
    ostra::audio::EndpointVolumes volumes;
    QString server; ///< by `soundServerIdentity`; empty where it is not known
};

/// The note as text. Endpoints without an id are left out: nothing could be matched with them.
QByteArray toNote(const VolumeNote &note);

/// What a note holds: levels within 0 to 1, channel volumes within `channelVolumeLimit`. Nothing, and the reason in
/// `complaint`, when it is no whole note of this format's version; then not a single record of it is used.
std::optional<VolumeNote> fromNote(const QByteArray &text, QString &complaint);

} // namespace host
