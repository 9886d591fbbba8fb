// SPDX-License-Identifier: Apache-2.0
#include "audio/worker_thread_use.h"

#include "audio/sdl_api.h"
#include "audio/worker_apartment.h"

namespace ostra::audio {

WorkerThreadUse::~WorkerThreadUse()
{
    if (thread_ != std::this_thread::get_id())
        return;
    sdl().cleanUpThread();
    if (isApartmentOurs_)
        leaveApartment();
}

void WorkerThreadUse::enter() noexcept
{
    if (thread_ == std::this_thread::get_id())
        return;
    thread_ = std::this_thread::get_id();
    isApartmentOurs_ = enterApartment();
}

} // namespace ostra::audio
