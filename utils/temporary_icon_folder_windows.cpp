// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include <QDir>

namespace ostra::utils {

bool ensureTemporaryIconFolder(const QString &folder) { return QDir().mkpath(folder); }

} // namespace ostra::utils
