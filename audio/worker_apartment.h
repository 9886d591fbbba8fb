// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::audio {

/// Enters the multithreaded COM apartment on the calling thread: on Windows the sound library does not do so on the thread that
/// opens a device, and a fresh thread lives in none. Elsewhere there is nothing to enter. True when the entry is to be balanced
/// by `leaveApartment`; false also on a thread that lives in an apartment of another kind, where COM works as it is. Any other
/// failure shows when a device cannot be opened.
bool enterApartment() noexcept;

/// Balances one entry of the calling thread.
void leaveApartment() noexcept;

} // namespace ostra::audio
