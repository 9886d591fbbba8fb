// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <thread>

namespace ostra::audio {

/// What a worker's thread needs before it may open and close sound devices, and what it must give back before it ends: its COM
/// apartment, and the memory that the sound library keeps for each thread that it did not start itself.
///
/// A member of a worker, placed before its engine, so that it lasts until the engine has closed its device. When it is
/// destroyed on another thread than the one that entered, that thread keeps what it has until it ends.
class WorkerThreadUse {
public:
    WorkerThreadUse() = default;
    ~WorkerThreadUse();
    WorkerThreadUse(const WorkerThreadUse &) = delete;
    WorkerThreadUse &operator=(const WorkerThreadUse &) = delete;

    /// Prepares the calling thread, once.
    void enter() noexcept;

private:
    std::thread::id thread_; ///< none at first
    bool isApartmentOurs_ = false;
};

} // namespace ostra::audio
