// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/close_request.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int startLimit = 15000; // ms

QProcess &manager()
{
    static QProcess process;
    return process;
}

// The manager makes this file when it has taken over all windows: to one that comes up before, it does not give the keyboard.
// On a busy machine it may find no display and end: then it is started again.
bool isManaged()
{
    static const QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("managed"));
    if (manager().state() == QProcess::NotRunning)
        manager().start(QStringLiteral("openbox"), {QStringLiteral("--startup"), QStringLiteral("touch '%1'").arg(mark)});
    return QFile::exists(mark);
}

} // namespace

void startWindowManager()
{
    manager().setStandardErrorFile(QProcess::nullDevice());
    QTRY_VERIFY_WITH_TIMEOUT(isManaged(), startLimit);
}

void stopWindowManager()
{
    manager().terminate();
    manager().waitForFinished();
}

void requestClose(QWidget &)
{
    QProcess::startDetached(QStringLiteral("xdotool"),
                            {QStringLiteral("key"), QStringLiteral("--clearmodifiers"), QStringLiteral("alt+F4")});
}
