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

} // namespace

void prepareStyleReader(int &argumentCount, char **arguments)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static const QApplication application(argumentCount, arguments);
    qInstallMessageHandler(listen);
}

bool isReadByQt(const QString &sheet)
{
    static const bool isAsked = std::getenv("FUZZ_STYLE_READER") != nullptr;
    if (!isAsked)
        return true;
    isRefused = false;
    QWidget widget;
    widget.setStyleSheet(sheet);
    widget.ensurePolished();
    if (isRefused)
        std::fprintf(stderr, "refused:\n%s", qPrintable(sheet));
    return !isRefused;
}

} // namespace fuzz
