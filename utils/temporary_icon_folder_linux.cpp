// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include <QByteArray>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace ostra::utils {

namespace {

// Without trailing separators: behind one, a link at the end would be followed.
QByteArray folderName(const QString &folder)
{
    QByteArray name = QFile::encodeName(folder);
    while (name.size() > 1 && name.endsWith('/'))
        name.chop(1);
    return name;
}

bool makeFolder(const QByteArray &name) { return ::mkdir(name.constData(), S_IRWXU) == 0 || errno == EEXIST; }

bool makeFolderWithParents(const QByteArray &name)
{
    for (qsizetype end = name.indexOf('/', 1); end > 0; end = name.indexOf('/', end + 1)) {
        const QByteArray parent = name.left(end);
        if (::access(parent.constData(), F_OK) != 0 && !makeFolder(parent))
            return false;
    }
    return makeFolder(name);
}

bool isSafeFolder(const QByteArray &name)
{
    struct stat facts {};
    if (::lstat(name.constData(), &facts) != 0 || !S_ISDIR(facts.st_mode)) // of the link itself, which is none
        return false;
    const bool othersWrite = (facts.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    return facts.st_uid == ::geteuid() && (!othersWrite || (facts.st_mode & S_ISVTX) != 0);
}

} // namespace

bool ensureTemporaryIconFolder(const QString &folder)
{
    const QByteArray name = folderName(folder);
    if (name.isEmpty())
        return false;
    // Asked for every icon, and there but for the first time.
    return isSafeFolder(name) || (makeFolderWithParents(name) && isSafeFolder(name));
}

} // namespace ostra::utils
