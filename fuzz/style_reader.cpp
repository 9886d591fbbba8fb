// SPDX-License-Identifier: Apache-2.0
#include "fuzz/style_reader.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

namespace {

bool isRefused = false;

// Qt tells what it could not read in a warning only.
void listen(QtMsgType, const QMessageLogContext &, const QString &text)
{
    isRefused = isRefused || text.contains(QStringLiteral("parse"));
}

bool isReadByQt(const QString &sheet)
{
    isRefused = false;
    QWidget widget;
    widget.setStyleSheet(sheet);
    widget.ensurePolished();
    return !isRefused;
}

} // namespace

void prepareStyleReader(int &argumentCount, char **arguments)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static const QApplication application(argumentCount, arguments);
    qInstallMessageHandler(listen);
}

bool staysReadable(const QString &before, const QString &after)
{
    static const bool isAsked = std::getenv("FUZZ_STYLE_READER") != nullptr;
    if (!isAsked || isReadByQt(after) || !isReadByQt(before))
        return true;
    std::fprintf(stderr, "taken:\n%s\nrefused:\n%s\n", qPrintable(before), qPrintable(after));
    return false;
}

} // namespace fuzz
