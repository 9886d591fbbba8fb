// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Whether standard input has come to its end, as it does when the process at its other end dies. Does not wait; what has
/// arrived is thrown away.
bool hasInputEnded();

} // namespace host
