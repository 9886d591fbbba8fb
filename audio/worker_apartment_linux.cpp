// SPDX-License-Identifier: Apache-2.0
#include "audio/worker_apartment.h"

namespace ostra::audio {

bool enterApartment() noexcept { return false; }

void leaveApartment() noexcept {}

} // namespace ostra::audio
