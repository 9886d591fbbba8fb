// SPDX-License-Identifier: Apache-2.0
#include "audio/worker_apartment.h"

#include <windows.h>

#include <objbase.h>

namespace ostra::audio {

bool enterApartment() noexcept { return SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)); }

void leaveApartment() noexcept { CoUninitialize(); }

} // namespace ostra::audio
