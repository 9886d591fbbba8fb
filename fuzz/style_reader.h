// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace fuzz {

/// Makes the application that Qt's stylesheets need, without windows.
void prepareStyleReader(int &argumentCount, char **arguments);

/// Whether Qt takes the sheet; prints it if not.
bool isReadByQt(const QString &sheet);

} // namespace fuzz
