// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace fuzz {

/// Makes the application that Qt's stylesheets need, without windows.
void prepareStyleReader(int &argumentCount, char **arguments);

/// Whether Qt takes the sheet; prints it if not. Asked only where FUZZ_STYLE_READER is set, in the long runs: of arbitrary bytes
/// some still become a sheet that Qt refuses as a whole, which leaves a dialog without style and harms nothing else.
bool isReadByQt(const QString &sheet);

} // namespace fuzz
