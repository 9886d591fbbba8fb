// SPDX-License-Identifier: Apache-2.0
#include "audio/abandoned_workers.h"

#include "audio/sdl_api.h"

#include <QLoggingCategory>

#include <atomic>
#include <memory>
#include <vector>

namespace ostra::audio {

namespace {

Q_LOGGING_CATEGORY(workers, "ostra.audio.workers")

struct Registry {
    std::vector<std::weak_ptr<std::atomic<bool>>> jobs;
    int uncountedWorkers = 0; ///< for which there was no memory
};

// A worker never touches it.
Registry &registry() noexcept
{
    static Registry registry;
    return registry;
}

} // namespace

void abandonWorker(const StopFlag &stopFlag) noexcept
{
    Registry &abandoned = registry();
    try {
        abandoned.jobs.emplace_back(stopFlag);
    } catch (...) {
        ++abandoned.uncountedWorkers;
    }
}

int abandonedWorkerCount() noexcept
{
    Registry &abandoned = registry();
    std::erase_if(abandoned.jobs, [](const auto &job) { return job.expired(); });
    return static_cast<int>(abandoned.jobs.size()) + abandoned.uncountedWorkers;
}

void quitSoundLibrary() noexcept
{
    if (const int count = abandonedWorkerCount(); count > 0) {
        qCWarning(workers, "SDL_Quit skipped: %d worker(s) still use the sound library", count);
        return;
    }
    sdl().quit();
}

} // namespace ostra::audio
