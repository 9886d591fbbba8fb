// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/listening_sources.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"
#include "host/precheck/device_names.h"

#include <pulse/introspect.h>
#include <pulse/proplist.h>
#include <pulse/volume.h>

#include <QByteArray>

#include <algorithm>
#include <cstdint>

namespace host {

namespace {

struct Output {
    QString listedName;
    QByteArray name;
    QByteArray master; ///< output that it plays through
    std::uint32_t index;
};

struct Source {
    ListeningSource listed;
    QByteArray name;
    QByteArray master; ///< source that it passes on
    std::uint32_t monitored;
};

struct Look {
    DeviceNames outputNames;
    DeviceNames sourceNames;
    QList<Output> outputs;
    QList<Source> sources;
    bool isWhole = true;
};

QByteArray masterOf(const pa_proplist *properties) { return pa_proplist_gets(properties, PA_PROP_DEVICE_MASTER_DEVICE); }

float levelOf(const pa_cvolume &volume)
{
    return static_cast<float>(static_cast<double>(std::min(pa_cvolume_max(&volume), pa_volume_t{PA_VOLUME_NORM})) /
                              PA_VOLUME_NORM);
}

// The callbacks are called by C code: an answer that cannot be stored makes the look incomplete instead of being thrown.
void addSink(pa_context * /*context*/, const pa_sink_info *sink, int endOfList, void *user) noexcept
{
    auto &look = *static_cast<Look *>(user);
    try {
        if (endOfList == 0)
            look.outputs.append({look.outputNames.next(QString::fromUtf8(sink->description)), sink->name,
                                 masterOf(sink->proplist), sink->index});
    } catch (...) {
        endOfList = -1;
    }
    look.isWhole = look.isWhole && endOfList >= 0;
}

void addSource(pa_context * /*context*/, const pa_source_info *source, int endOfList, void *user) noexcept
{
    auto &look = *static_cast<Look *>(user);
    try {
        if (endOfList == 0) {
            const bool isVirtual = source->card == PA_INVALID_INDEX && (source->flags & PA_SOURCE_HARDWARE) == 0;
            const QString listed = look.sourceNames.next(QString::fromUtf8(source->description));
            look.sources.append({{listed, {}, isVirtual, source->mute != 0, levelOf(source->volume)},
                                 source->name,
                                 masterOf(source->proplist),
                                 source->monitor_of_sink});
        }
    } catch (...) {
        endOfList = -1;
    }
    look.isWhole = look.isWhole && endOfList >= 0;
}

template <typename Device>
const Device *findNamed(const QList<Device> &devices, const QByteArray &name)
{
    const auto found =
        std::find_if(devices.begin(), devices.end(), [&name](const Device &device) { return device.name == name; });
    return name.isEmpty() || found == devices.end() ? nullptr : &*found;
}

/// A device and those that it stands on; as many as there are at most, whatever the server says.
template <typename Device>
QList<const Device *> chainOf(const Device &device, const QList<Device> &devices)
{
    QList<const Device *> chain;
    for (const Device *next = &device; next != nullptr && chain.size() < devices.size();
         next = findNamed(devices, next->master))
        chain.append(next);
    return chain;
}

QStringList outputsThrough(std::uint32_t sink, const QList<Output> &outputs)
{
    QStringList names;
    for (const Output &output : outputs) {
        const QList<const Output *> chain = chainOf(output, outputs);
        if (std::any_of(chain.begin(), chain.end(), [sink](const Output *link) { return link->index == sink; }))
            names.append(output.listedName);
    }
    return names;
}

ListeningSource followed(const Source &source, const Look &look)
{
    ListeningSource whole = source.listed;
    for (const Source *link : chainOf(source, look.sources)) {
        whole.isMuted = whole.isMuted || link->listed.isMuted;
        whole.level = std::min(whole.level, link->listed.level);
        whole.isVirtual = whole.isVirtual || link->listed.isVirtual;
        if (link->monitored != PA_INVALID_INDEX)
            whole.hearsOutputs = outputsThrough(link->monitored, look.outputs);
    }
    return whole;
}

} // namespace

std::optional<QList<ListeningSource>> readListeningSources()
{
    Look look;
    ostra::audio::PulseConnection connection(ostra::audio::passBound);
    if (!connection.open() || !connection.finish(pa_context_get_sink_info_list(connection.context(), addSink, &look)) ||
        !connection.finish(pa_context_get_source_info_list(connection.context(), addSource, &look)) || !look.isWhole)
        return std::nullopt;
    QList<ListeningSource> sources;
    for (const Source &source : look.sources)
        sources.append(followed(source, look));
    return sources;
}

} // namespace host
