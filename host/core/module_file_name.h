// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// File name of the diagnostics module on this platform.
const char *moduleFileName() noexcept;

} // namespace host
