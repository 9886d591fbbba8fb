// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Lets a file's appearing in, or vanishing from, `folder` survive a power cut from now on, where the system can promise that.
void syncFolder(const QString &folder);

} // namespace host
