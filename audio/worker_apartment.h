// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <thread>

namespace ostra::audio {

/// What a thread needs before it may open and close sound devices. On Windows a COM apartment: the sound library does not
/// enter one on the thread that opens a device, and a fresh thread has none. Elsewhere nothing.
///
/// A member of a worker, placed before its engine, so that the apartment lasts until the engine has closed its device. When it
/// is destroyed on another thread than the one that entered, that thread keeps its apartment until it ends.
class WorkerApartment {
public:
    WorkerApartment() = default;
    ~WorkerApartment();
    WorkerApartment(const WorkerApartment &) = delete;
    WorkerApartment &operator=(const WorkerApartment &) = delete;

    /// Enters the multithreaded apartment on the calling thread, once; a thread that lives in one of another kind stays there.
    /// A failure shows when a device cannot be opened.
    void enter() noexcept;

private:
    std::thread::id thread_; ///< the thread whose entry is ours to end; none at first
};

} // namespace ostra::audio
