// SPDX-License-Identifier: Apache-2.0
#include "host/gui/display_guard.h"

#include "host/core/no_display.h"
#include "host/gui/console_output.h"

#include <QFile>
#include <QStringList>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace host {

namespace {

constexpr int cannotBePerformedExitCode = 3;

struct Guard {
    QtMessageHandler before = nullptr;
    QString verdictFile;
    QStringList reasons; ///< Qt's messages, as they are
    QStringList lines;   ///< the same, as Qt shows them
};

Guard &guard()
{
    static Guard only;
    return only;
}

[[noreturn]] void endWithoutDisplay()
{
    const QString reason = guard().reasons.value(0).simplified();
    complain(QStringLiteral("needs a display; try xvfb-run") +
             (reason.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(reason)));
    QFile file(guard().verdictFile);
    if (!guard().verdictFile.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(QByteArray(noDisplayWords) + '\n');
    file.close();
    std::_Exit(cannotBePerformedExitCode);
}

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg)
        endWithoutDisplay();
    guard().reasons.append(message);
    guard().lines.append(qFormatLogMessage(type, context, message));
}

} // namespace

void guardDisplay(const QString &verdictFile)
{
    guard().verdictFile = verdictFile;
    guard().before = qInstallMessageHandler(keepMessage);
}

void releaseDisplay()
{
    qInstallMessageHandler(guard().before);
    for (const QString &line : guard().lines)
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
}

} // namespace host
