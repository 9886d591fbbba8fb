// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/listening_sources.h"

#include "audio/endpoints/endpoint_volume.h"
#include "host/core/capture_source.h"

#include <algorithm>

namespace host {

namespace {

const QString monitorSuffix = QStringLiteral(".monitor");

// What sound servers call a monitor tells whose it is.
std::optional<QString> outputInName(const QString &source)
{
    for (const QLatin1StringView prefix : {monitorPrefix, loopbackPrefix}) {
        if (source.startsWith(prefix))
            return source.mid(prefix.size());
    }
    return source.endsWith(monitorSuffix) ? std::optional(source.chopped(monitorSuffix.size())) : std::nullopt;
}

} // namespace

bool ListeningSource::isOpen() const { return !isMuted && level >= 1 - ostra::audio::levelTolerance; }

const ListeningSource *findListeningSource(const QList<ListeningSource> &sources, const QString &name)
{
    const bool isLoopback = name.startsWith(loopbackPrefix);
    const QString output = name.mid(loopbackPrefix.size());
    const QString wanted = isLoopback ? monitorPrefix + output : name;
    auto found = std::find_if(sources.begin(), sources.end(),
                              [&wanted](const ListeningSource &source) { return source.name == wanted; });
    if (found == sources.end() && isLoopback)
        found = std::find_if(sources.begin(), sources.end(),
                             [&output](const ListeningSource &source) { return source.hearsOutputs.contains(output); });
    return found == sources.end() ? nullptr : &*found;
}

bool hearsAnotherOutput(const std::optional<QList<ListeningSource>> &sources, const QString &source, const QString &device)
{
    const std::optional<QString> named = outputInName(source);
    const ListeningSource *known = sources ? findListeningSource(*sources, source) : nullptr;
    if (source.startsWith(loopbackPrefix) || known == nullptr)
        return named && *named != device;
    return known->hearsOutputs.isEmpty() ? named.has_value() : !known->hearsOutputs.contains(device);
}

} // namespace host
