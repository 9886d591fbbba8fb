// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace ostra {

/// Pending-event flags of `EventSource::pendingEvents` that cancel a test: bits 0, 1 and 3 to 8. Bit 2 and everything
/// above bit 8 never cancel.
inline constexpr std::uint32_t cancelingEventMask = 0x1FB;

} // namespace ostra
