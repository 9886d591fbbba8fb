// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace ostra::utils {

/// Makes `folder` with its missing parents; false when it cannot be made or must not be used.
///
/// Windows: new folders have the rights of their parent. A folder that is a junction or a symbolic link (any reparse point) is
/// refused: icons would be written where it leads. Who else may write to a folder is its parent's matter.
/// Linux: new folders have the mode 0700. A folder that is a symbolic link, that another user owns or in which others may
/// replace files (writable for them without the sticky bit) is refused: icons there could be exchanged before they are
/// shown. The mode of an existing folder is left alone.
bool ensureTemporaryIconFolder(const QString &folder);

} // namespace ostra::utils
