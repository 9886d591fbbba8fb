// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/folder_sync.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace host {

void syncFolder(const QString &folder)
{
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace host
