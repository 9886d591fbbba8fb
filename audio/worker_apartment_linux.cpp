// SPDX-License-Identifier: Apache-2.0
#include "audio/worker_apartment.h"

namespace ostra::audio {

WorkerApartment::~WorkerApartment() = default;

void WorkerApartment::enter() noexcept { thread_ = std::this_thread::get_id(); }

} // namespace ostra::audio
