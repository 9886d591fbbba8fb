// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

#include <string>

namespace bench {

/// Reads a file by QSettings into QSettings' own table. Until all keys are asked for, its sections
/// are only kept as text.
inline void readWithQtSettings(const std::string &file)
{
    const QSettings settings(QString::fromStdString(file), QSettings::IniFormat);
    static_cast<void>(settings.allKeys());
}

} // namespace bench
