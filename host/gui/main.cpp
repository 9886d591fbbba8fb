// SPDX-License-Identifier: Apache-2.0
#include "host/core/debug_lines.h"
#include "host/core/sound_environment.h"
#include "host/gui/console_output.h"
#include "host/gui/program.h"
#include "host/gui/window_check.h"

#include <QApplication>
#include <QCoreApplication>

namespace {

constexpr int usageExitCode = 2;

// By an application without windows, so that help and complaints need no display.
std::variant<host::Options, host::OptionsError> readCommandLine(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return host::readOptions(QCoreApplication::arguments());
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
    if (options.isHelp || options.isVersion) {
        host::print(options.isHelp ? host::optionsHelp() : QStringLiteral("TamrexDiagnostics " HOST_VERSION "\n"));
        return 0;
    }
    if (!options.isVerbose)
        host::hideDebugLines();
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // the module's dialogs scale themselves
    host::keepInterruptSignals();
    const QApplication application(argc, argv);
    if (options.isSelfCheck) {
        host::print(QString::fromUtf8(host::windowCheckLine(host::checkWindows())));
        return 0;
    }
    QCoreApplication::setOrganizationName(QStringLiteral("Tamrex"));
    QCoreApplication::setApplicationName(QStringLiteral("TamrexDiagnostics"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));
    return host::runGuiProgram(options);
}
