// SPDX-License-Identifier: Apache-2.0
#include "host/operator/volume_watch.h"

#include "host/operator/heard_log.h"
#include "host/precheck/listening_sources.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

namespace host {

namespace {

using ostra::audio::EndpointName;
using ostra::audio::EndpointNames;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

constexpr qint64 lookIntervalMs = 250;

bool isRaised(const EndpointVolume &endpoint) { return !endpoint.muted && endpoint.level >= 1 - ostra::audio::levelTolerance; }

bool areAllRaised(const EndpointVolumes &volumes) { return std::all_of(volumes.begin(), volumes.end(), isRaised); }

} // namespace

bool areRaised(const EndpointVolumes &volumes, const EndpointNames &names, const QStringList &wanted)
{
    std::set<std::u16string> ids;
    for (const EndpointName &name : names) {
        if (wanted.contains(QString::fromStdString(name.description)))
            ids.insert(name.id);
    }
    EndpointVolumes chosen;
    std::copy_if(volumes.begin(), volumes.end(), std::back_inserter(chosen),
                 [&ids](const EndpointVolume &endpoint) { return ids.contains(endpoint.id); });
    return areAllRaised(chosen.empty() ? volumes : chosen);
}

void VolumeWatch::look()
{
    if (!wereRaised() || steadyNowMs() - lookedMs_ < lookIntervalMs)
        return;
    lookedMs_ = steadyNowMs();
    lookAtEndpoints();
    lookAtSources();
}

// The names are asked for only where they matter.
void VolumeWatch::lookAtEndpoints()
{
    EndpointVolumes volumes;
    EndpointNames names;
    if (ostra::audio::readEndpointVolumes(volumes) != 0 || areAllRaised(volumes))
        return;
    wereRaised_ = ostra::audio::readEndpointNames(names) == 0 && areRaised(volumes, names, wanted_);
}

QString VolumeWatch::complaint() const
{
    if (!wereRaised_)
        return QStringLiteral("the volume could not be raised");
    return wasSourceTurnedDown_ ? QStringLiteral("the capture source was muted or turned down") : QString();
}

void VolumeWatch::lookAtSources()
{
    const std::optional<QList<ListeningSource>> sources = readListeningSources();
    for (qsizetype index = 0; sources && index < wanted_.size(); ++index) {
        const ListeningSource *source = findListeningSource(*sources, wanted_[index]);
        wasSourceTurnedDown_ = wasSourceTurnedDown_ || (source != nullptr && !source->isOpen());
    }
}

} // namespace host
