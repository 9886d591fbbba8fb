// SPDX-License-Identifier: Apache-2.0
#include "audio/worker_apartment.h"

#include <windows.h>

#include <objbase.h>

namespace ostra::audio {

WorkerApartment::~WorkerApartment()
{
    if (thread_ == std::this_thread::get_id())
        CoUninitialize();
}

void WorkerApartment::enter() noexcept
{
    if (thread_ == std::this_thread::get_id())
        return;
    // Only a success counts as an entry; RPC_E_CHANGED_MODE means that COM works here without us.
    if (SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)))
        thread_ = std::this_thread::get_id();
}

} // namespace ostra::audio
