// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace sal {

/// Makes sure that `folder` exists and belongs to this user alone: a directory, not a link to one, owned by the effective user
/// and closed to everybody else. Creates it with mode 0700 when it is missing; its parent must exist. False when it is not so:
/// in a folder that everybody may write to, another user may have been there first.
bool ensurePrivateFolder(const std::string &folder);

} // namespace sal
