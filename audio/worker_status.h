// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ios>

namespace ostra::audio {

/// What the workers report through `SendResultStatus(int)`; known to the microphone test's pages only.
namespace worker_status {

constexpr int finished = 0;      ///< the job ended because it was told to, or the device stopped of its own accord
constexpr int failed = 11;       ///< anything that is not one of the others
constexpr int disconnected = 38; ///< the device vanished during the job, or could not be opened

} // namespace worker_status

/// Runs `job`, which answers a status; whatever it throws becomes one.
template <typename Job>
int statusOf(Job job) noexcept
{
    try {
        return job();
    } catch (const std::ios_base::failure &) {
        return worker_status::disconnected;
    } catch (...) {
        return worker_status::failed;
    }
}

} // namespace ostra::audio
