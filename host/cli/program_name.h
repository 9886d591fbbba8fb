// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

inline constexpr const char *programName = "TamrexDiagnosticsCLI";

} // namespace host
