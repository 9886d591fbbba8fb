// SPDX-License-Identifier: Apache-2.0
#include "host/cli/console.h"
#include "host/cli/program.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    host::Console console;
    const QCoreApplication application(argc, argv);
    host::ProgramEnd end = host::runProgram(QCoreApplication::arguments(), console);
    if (!console.flush()) {
        console.complain(QStringLiteral("the output could not be written"));
        end.code = end.code == host::ExitCode::success ? host::ExitCode::notCompleted : end.code;
    }
    return end.isGnuExit ? host::gnuCodeOf(end.code) : static_cast<int>(end.code);
}
