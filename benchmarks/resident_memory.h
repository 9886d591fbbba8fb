// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace bench {

/// What of this process lies in memory now, in kilobytes of 1024 bytes.
double residentKilobytes();

} // namespace bench
