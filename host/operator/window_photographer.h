// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace host {

/// Saves pictures of windows as numbered PNG files; does nothing without a folder.
class WindowPhotographer {
public:
    explicit WindowPhotographer(QString folder);

    /// Saves `window` as NN-step.png; the numbers go on over all runs. What cannot be saved is left out.
    void take(QWidget *window, const QString &step);
    /// Absolute paths since the last call.
    QStringList takeFiles();

private:
    QString folder_;
    int number_ = 0;
    QStringList files_;
};

} // namespace host
