// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/volume_note.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using ostra::audio::EndpointVolume;

namespace host {

namespace {

constexpr QLatin1String formatName("module_audio.volume_note");
constexpr int formatVersion = 1;
constexpr QLatin1String serverKey("server");
constexpr qsizetype endpointCountLimit = 512;
constexpr qsizetype channelCountLimit = 32; // of the sound server

QJsonObject toJson(const EndpointVolume &volume)
{
    QJsonArray channels;
    for (const std::uint32_t channel : volume.channelVolumes)
        channels.append(static_cast<qint64>(channel));
    return {{QLatin1String("id"), QString::fromStdU16String(volume.id)},
            {QLatin1String("level"), static_cast<double>(volume.level)},
            {QLatin1String("muted"), volume.muted},
            {QLatin1String("channelVolumes"), channels}};
}

// A negative or broken number is no volume; one that is merely too loud is made quieter.
std::optional<std::uint32_t> channelOf(const QJsonValue &value)
{
    const double number = value.toDouble(-1.0);
    if (number < 0.0 || number != std::floor(number))
        return std::nullopt;
    return static_cast<std::uint32_t>(std::min(number, static_cast<double>(channelVolumeLimit)));
}

bool readChannels(const QJsonValue &value, std::vector<std::uint32_t> &channels)
{
    if (!value.isArray() || value.toArray().size() > channelCountLimit)
        return false;
    for (const QJsonValue entry : value.toArray()) {
        const std::optional<std::uint32_t> channel = channelOf(entry);
        if (!channel)
            return false;
        channels.push_back(*channel);
    }
    return true;
}

std::optional<EndpointVolume> recordOf(const QJsonObject &entry)
{
    const QJsonValue level = entry[QLatin1String("level")];
    const QJsonValue muted = entry[QLatin1String("muted")];
    EndpointVolume record;
    record.id = entry[QLatin1String("id")].toString().toStdU16String();
    // A record without an id would be meant for whatever endpoint stands at its position.
    if (record.id.empty() || !level.isDouble() || !muted.isBool() ||
        !readChannels(entry[QLatin1String("channelVolumes")], record.channelVolumes))
        return std::nullopt;
    record.level = static_cast<float>(std::clamp(level.toDouble(), 0.0, 1.0));
    record.muted = muted.toBool();
    return record;
}

QString complaintAboutHead(const QJsonDocument &document)
{
    const QJsonObject note = document.object();
    if (!document.isObject() || note[QLatin1String("format")].toString() != formatName)
        return QStringLiteral("it is no note of volumes");
    if (note[QLatin1String("version")].toInt(-1) != formatVersion)
        return QStringLiteral("it was written by another version");
    const QJsonValue endpoints = note[QLatin1String("endpoints")];
    if (!endpoints.isArray() || endpoints.toArray().size() > endpointCountLimit)
        return QStringLiteral("its list of endpoints is missing or too long");
    return {};
}

} // namespace

QByteArray toNote(const VolumeNote &note)
{
    QJsonArray endpoints;
    for (const EndpointVolume &volume : note.volumes) {
        if (!volume.id.empty())
            endpoints.append(toJson(volume));
    }
    QJsonObject document{{QLatin1String("format"), formatName},
                         {QLatin1String("version"), formatVersion},
                         {QLatin1String("endpoints"), endpoints}};
    if (!note.server.isEmpty())
        document.insert(serverKey, note.server);
    return QJsonDocument(document).toJson();
}

std::optional<VolumeNote> fromNote(const QByteArray &text, QString &complaint)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    complaint = complaintAboutHead(document);
    if (!complaint.isEmpty())
        return std::nullopt;
    VolumeNote note;
    note.server = document.object()[serverKey].toString();
    for (const QJsonValue entry : document.object()[QLatin1String("endpoints")].toArray()) {
        std::optional<EndpointVolume> record = recordOf(entry.toObject());
        if (!record) {
            complaint = QStringLiteral("one of its endpoints is damaged");
            return std::nullopt;
        }
        note.volumes.push_back(std::move(*record));
    }
    return note;
}

} // namespace host
