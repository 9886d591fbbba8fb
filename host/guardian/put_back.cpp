// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/put_back.h"

#include "host/guardian/endpoint_words.h"
#include "host/guardian/guardian_log.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <thread>
#include <utility>

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
    EndpointVolumes absent;

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

const EndpointVolume *findById(const EndpointVolumes &list, const std::u16string &id)
{
    const auto found = std::ranges::find(list, id, &EndpointVolume::id);
    return found == list.end() ? nullptr : &*found;
}

EndpointVolumes absentFrom(const EndpointVolumes &current, EndpointVolumes saved)
{
    std::erase_if(saved, [&current](const EndpointVolume &record) { return findById(current, record.id) != nullptr; });
    return saved;
}

bool readCurrent(EndpointVolumes &current)
{
    const bool isRead = ostra::audio::readEndpointVolumes(current) == 0;
    std::erase_if(current, [](const EndpointVolume &volume) { return volume.id.empty(); });
    return isRead;
}

// The level alone hides what is louder than 100 %, which no run sets.
bool isFull(const EndpointVolume &volume)
{
    constexpr double fullVolume = 65536.0; // of the sound server's units
    return volume.level > 1.0F - ostra::audio::levelTolerance &&
           std::ranges::all_of(volume.channelVolumes, [](std::uint32_t channel) {
               return std::abs(channel / fullVolume - 1.0) < static_cast<double>(ostra::audio::levelTolerance);
           });
}

bool isRaised(const EndpointVolume &saved, const EndpointVolume &now) { return isFull(now) && (!now.muted || saved.muted); }

bool Endeavour::tryOnce(const EndpointVolumes &saved)
{
    EndpointVolumes current;
    if (!readCurrent(current))
        return false;
    absent = absentFrom(current, saved);
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
    return {isDone, describeEndpoints(endeavour.repaired()), {}, std::move(endeavour.absent)};
}

EndpointVolumes stillRaised(const EndpointVolumes &saved, const EndpointVolumes &current)
{
    EndpointVolumes raised;
    std::ranges::copy_if(saved, std::back_inserter(raised), [&current](const EndpointVolume &record) {
        const EndpointVolume *now = findById(current, record.id);
        return now != nullptr && isRaised(record, *now);
    });
    return raised;
}

PutBack putBackRaised(const EndpointVolumes &saved)
{
    EndpointVolumes current;
    if (!readCurrent(current))
        return {};
    const EndpointVolumes raised = stillRaised(saved, current);
    EndpointVolumes others = ostra::audio::changedEndpoints(saved, current);
    std::erase_if(others, [&raised](const EndpointVolume &record) { return findById(raised, record.id) != nullptr; });
    PutBack result = putBack(raised, oneTry);
    for (EndpointVolume &record : absentFrom(current, saved))
        result.absent.push_back(std::move(record));
    result.left = describeEndpoints(idsOf(others));
    for (const QString &name : std::as_const(result.left))
        qCWarning(guardianLog, "the volume of %s was changed since an earlier run and is left as it is",
                  qUtf8Printable(name));
    return result;
}

} // namespace host
