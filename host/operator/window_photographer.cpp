// SPDX-License-Identifier: Apache-2.0
#include "host/operator/window_photographer.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <utility>

namespace host {

WindowPhotographer::WindowPhotographer(QString folder) : folder_(std::move(folder)) {}

void WindowPhotographer::take(QWidget *window, const QString &step)
{
    if (folder_.isEmpty() || !QDir().mkpath(folder_))
        return;
    ++number_;
    const QString name = QStringLiteral("%1-%2.png").arg(number_, 2, 10, QLatin1Char('0')).arg(step);
    const QString file = QDir(folder_).absoluteFilePath(name);
    if (window->grab().save(file))
        files_.append(file);
}

QStringList WindowPhotographer::takeFiles() { return std::exchange(files_, {}); }

} // namespace host
