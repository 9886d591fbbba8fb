// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/put_back.h"

#include "host/guardian/endpoint_words.h"
#include "host/guardian/guardian_log.h"

#include <algorithm>
#include <thread>

using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace host {

namespace {

using Clock = std::chrono::steady_clock;
using Ids = std::vector<std::u16string>;

// One endeavour over several tries: which endpoints were found changed, and which of them still are.
struct Endeavour {
    Ids found;
    Ids left;

    bool tryOnce(const EndpointVolumes &saved);
    Ids repaired() const;
};

Ids idsOf(const EndpointVolumes &volumes)
{
    Ids ids;
    for (const EndpointVolume &volume : volumes)
        ids.push_back(volume.id);
    return ids;
}

bool isIn(const Ids &ids, const std::u16string &id) { return std::ranges::find(ids, id) != ids.end(); }

bool readCurrent(EndpointVolumes &current)
{
    const bool isRead = ostra::audio::readEndpointVolumes(current) == 0;
    std::erase_if(current, [](const EndpointVolume &volume) { return volume.id.empty(); });
    return isRead;
}

bool Endeavour::tryOnce(const EndpointVolumes &saved)
{
    EndpointVolumes current;
    if (!readCurrent(current))
        return false;
    left = idsOf(ostra::audio::changedEndpoints(saved, current));
    std::ranges::copy_if(left, std::back_inserter(found), [this](const std::u16string &id) { return !isIn(found, id); });
    if (left.empty())
        return true;
    // The pass goes over every endpoint: one that the run has not met gets the volume that it has.
    if (ostra::audio::applyEndpointVolumes(ostra::audio::withNewcomers(saved, current)) != 0)
        return false;
    left.clear();
    return true;
}

Ids Endeavour::repaired() const
{
    Ids ids;
    std::ranges::copy_if(found, std::back_inserter(ids), [this](const std::u16string &id) { return !isIn(left, id); });
    return ids;
}

bool tryPatiently(Endeavour &endeavour, const EndpointVolumes &saved, const Patience &patience)
{
    const Clock::time_point end = Clock::now() + patience.bound;
    for (int number = 1;; ++number) {
        if (endeavour.tryOnce(saved))
            return true;
        if (number >= patience.tryCount || Clock::now() + patience.pause > end)
            return false;
        qCWarning(guardianLog, "the volumes could not be put back, trying again");
        std::this_thread::sleep_for(patience.pause);
    }
}

} // namespace

PutBack putBack(const EndpointVolumes &saved, const Patience &patience)
{
    Endeavour endeavour;
    const bool isDone = tryPatiently(endeavour, saved, patience);
    return {isDone, describeEndpoints(endeavour.repaired())};
}

} // namespace host
