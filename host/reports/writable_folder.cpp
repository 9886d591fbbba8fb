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

bool canMakeAndWriteInto(const QString &folder) { return QDir().mkpath(folder) && canWriteInto(folder); }

bool canWriteBeside(const QString &file) { return canWriteInto(QFileInfo(file).absolutePath()); }

} // namespace host
