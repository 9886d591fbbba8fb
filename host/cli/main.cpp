// SPDX-License-Identifier: Apache-2.0
#include "host/cli/console.h"
#include "host/cli/program.h"

#include <QCoreApplication>
#include <QtGlobal>

namespace {

void ignore(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*message*/) {}

} // namespace

int main(int argc, char *argv[])
{
    host::Console console;
    // In the "C" locale the application object complains on standard error about a matter that is none of the user's: what we
    // write is UTF-8 in any locale.
    const QtMessageHandler previous = qInstallMessageHandler(ignore);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(previous);

    host::ExitCode code = host::runProgram(QCoreApplication::arguments(), console);
    if (!console.flush()) {
        console.complain(QStringLiteral("the output could not be written"));
        code = code == host::ExitCode::success ? host::ExitCode::notCompleted : code;
    }
    return static_cast<int>(code);
}
