// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

/// How a table looks.
enum class TableStyle { plain, boldHeader };

/// `rows` below `header` in columns that are two blanks apart and as wide as their widest cell on a terminal; the last column
/// is not padded. Cells go through `shownText`; an empty one becomes "-". Every row has as many cells as the header. Each line
/// ends with "\n".
QString textTable(const QStringList &header, const QList<QStringList> &rows, TableStyle style);

} // namespace host
