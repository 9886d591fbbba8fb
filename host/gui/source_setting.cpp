// SPDX-License-Identifier: Apache-2.0
#include "host/gui/source_setting.h"

#include "host/core/capture_source.h"

#include <QDir>
#include <QSettings>

#include <utility>

namespace host {

namespace {

const QString key = QStringLiteral("listener/source");

QString fileIn(const QString &folder) { return QDir(folder).filePath(QStringLiteral("host.ini")); }

} // namespace

SourceSetting::SourceSetting(QString folder)
    : folder_(std::move(folder)), source_(systemSource(QSettings(fileIn(folder_), QSettings::IniFormat).value(key).toString()))
{}

bool SourceSetting::change(const QString &source)
{
    source_ = source;
    QSettings settings(fileIn(folder_), QSettings::IniFormat);
    if (source.isEmpty())
        settings.remove(key);
    else
        settings.setValue(key, source);
    settings.sync();
    return settings.status() == QSettings::NoError && settings.isWritable();
}

} // namespace host
