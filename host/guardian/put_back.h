// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/endpoint_volume.h"

#include <QStringList>

#include <chrono>

namespace host {

/// How long to go on when the sound system does not do as it is told. Each try takes two passes, so at most twice
/// `ostra::audio::passBound` on Linux.
struct Patience {
    int tryCount = 1;
    std::chrono::milliseconds pause{0}; ///< between two tries
    std::chrono::milliseconds bound{0}; ///< no try begins later than this after the first one
};

/// For a program that does nothing else.
inline constexpr Patience guardianPatience{6, std::chrono::milliseconds(300), std::chrono::milliseconds(8000)};
/// For a program whose user waits.
inline constexpr Patience oneTry{};

struct PutBack {
    bool isDone = false; ///< every noted endpoint that is there has its noted volume
    QStringList names;   ///< of the endpoints that had another one and have theirs again
    QStringList left;    ///< of those that have another one and were left alone
    ostra::audio::EndpointVolumes absent; ///< the noted ones that are not there, if that could be read
};

/// The records of `saved` whose endpoint still stands, in `current`, where a run has put it: at full volume, and unmuted unless
/// it was muted before as well.
ostra::audio::EndpointVolumes stillRaised(const ostra::audio::EndpointVolumes &saved,
                                          const ostra::audio::EndpointVolumes &current);

/// Gives every endpoint of `saved` that is there and has another volume its own again. Endpoints that are gone are passed over
/// and told as absent, new ones are left as they are. All records carry ids.
PutBack putBack(const ostra::audio::EndpointVolumes &saved, const Patience &patience);

/// The same, in one try, for volumes that were saved by a run of the past: somebody may have set others since, so that only the
/// endpoints that are still raised get theirs. The others are left alone, with a line in the log.
PutBack putBackRaised(const ostra::audio::EndpointVolumes &saved);

} // namespace host
