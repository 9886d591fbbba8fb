// SPDX-License-Identifier: Apache-2.0
#include "host/core/debug_lines.h"
#include "host/core/sound_environment.h"
#include "host/gui/console_output.h"
#include "host/gui/display_guard.h"
#include "host/gui/process_end.h"
#include "host/gui/program.h"
#include "host/gui/window_check.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>

namespace {

constexpr int usageExitCode = 2;

// By an application without windows, so that help and complaints need no display.
std::variant<host::Options, host::OptionsError> readCommandLine(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return host::readOptions(QCoreApplication::arguments());
}

// Of the options that end the program; empty without one of them.
QString printedText(const host::Options &options)
{
    if (options.isHelp)
        return host::optionsHelp();
    if (options.isVersion)
        return QStringLiteral("TamrexDiagnostics " HOST_VERSION "\n");
    if (options.isManual)
        return host::manualOfHost();
    return options.isCompletion ? host::completionOfHost() : QString();
}

int runWindows(int argc, char *argv[], const host::Options &options)
{
    host::guardDisplay(options.verdictFile);
    const QApplication application(argc, argv);
    host::releaseDisplay();
    if (options.isSelfCheck) {
        host::print(QString::fromUtf8(host::windowCheckLine(host::checkWindows())));
        return 0;
    }
    QCoreApplication::setOrganizationName(QStringLiteral("Tamrex"));
    QCoreApplication::setApplicationName(QStringLiteral("TamrexDiagnostics"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));
    return host::runGuiProgram(options);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto parsed = readCommandLine(argc, argv);
    if (const auto *error = std::get_if<host::OptionsError>(&parsed)) {
        host::complain(error->message);
        return usageExitCode;
    }
    const auto &options = std::get<host::Options>(parsed);
    const QString text = printedText(options);
    if (!text.isEmpty()) {
        host::print(text);
        return 0;
    }
    if (!options.verdictFile.isEmpty())
        QFile::remove(options.verdictFile); // an earlier run's must not outlive a start that breaks down
    if (!options.isVerbose)
        host::hideDebugLines();
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // the module's dialogs scale themselves
    host::keepInterruptSignals();
    host::guardProcessEnd();
    const int code = runWindows(argc, argv, options);
    host::releaseProcessEnd();
    return code;
}
