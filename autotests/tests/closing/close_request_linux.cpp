// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/close_request.h"

#include <QProcess>
#include <QTest>

namespace {

constexpr int startLimit = 15000; // ms

QProcess &manager()
{
    static QProcess process;
    return process;
}

// Who manages the windows tells which desktop it shows. On a busy machine the manager may find no display and end:
// then it is started again.
bool isManaged()
{
    if (manager().state() == QProcess::NotRunning) {
        manager().start();
    }
    return QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("get_desktop")}) == 0;
}

} // namespace

void startWindowManager()
{
    manager().setStandardErrorFile(QProcess::nullDevice());
    manager().setProgram(QStringLiteral("openbox"));
    manager().start();
    QVERIFY2(manager().waitForStarted(), "openbox is missing");
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
