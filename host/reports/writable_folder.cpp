// SPDX-License-Identifier: Apache-2.0
#include "host/reports/writable_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace host {

bool canWriteInto(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return false;
    QTemporaryFile file(QDir(folder).filePath(QStringLiteral("try-XXXXXX.tmp")));
    return file.open();
}

// Only the last part of the path: where more of it is missing it has a mistake.
bool canMakeAndWriteInto(const QString &folder)
{
    return (QFileInfo(folder).isDir() || QDir().mkdir(folder)) && canWriteInto(folder);
}

bool canWriteBeside(const QString &file) { return canWriteInto(QFileInfo(file).absolutePath()); }

} // namespace host
