// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include <QDir>

#include <windows.h>

#include <string>

namespace ostra::utils {

namespace {

// Without separators at the end: behind one, a link at the end may be followed.
std::wstring systemName(const QString &folder)
{
    QString name = QDir::toNativeSeparators(QDir::cleanPath(QDir::current().absoluteFilePath(folder)));
    // Only with this prefix does the system take as long a name as Qt has just made a folder of.
    if (name.size() >= MAX_PATH && !name.startsWith(QLatin1StringView("\\\\")))
        name.prepend(QLatin1StringView("\\\\?\\"));
    else if (name.size() >= MAX_PATH && name[2] != QLatin1Char('?') && name[2] != QLatin1Char('.'))
        name.replace(0, 2, QLatin1StringView("\\\\?\\UNC\\"));
    return name.toStdWString();
}

// The attributes of a link are its own, not those of its target.
bool isPlainFolder(const QString &folder)
{
    const DWORD attributes = GetFileAttributesW(systemName(folder).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == FILE_ATTRIBUTE_DIRECTORY;
}

} // namespace

bool ensureTemporaryIconFolder(const QString &folder) { return QDir().mkpath(folder) && isPlainFolder(folder); }

} // namespace ostra::utils
