// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Whether a file can be made in `folder`, found out by making one that is gone again afterwards. What a folder says of its
/// rights is no answer: a read-only file system and Windows' lists of rights know better.
bool canWriteInto(const QString &folder);

/// The same, of a folder that may still have to be made, which it is then. The one above it must be there.
bool canMakeAndWriteInto(const QString &folder);

/// Of the folder that the named file belongs into.
bool canWriteBeside(const QString &file);

} // namespace host
