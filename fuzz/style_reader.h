// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace fuzz {

/// Makes the application that Qt's stylesheets need, without windows.
void prepareStyleReader(int &argumentCount, char **arguments);

/// Whether Qt takes `after` where it took `before`; prints both if not. What Qt refuses beforehand is no sheet, and may become
/// one that Qt refuses as well. Asked only where FUZZ_STYLE_READER is set, in the long runs.
bool staysReadable(const QString &before, const QString &after);

} // namespace fuzz
