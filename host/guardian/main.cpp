// SPDX-License-Identifier: Apache-2.0
// volume_guardian STATE_FOLDER: notes every volume, says "ready", and waits on its standard input for the end of the host.
#include "host/guardian/guardian_input.h"
#include "host/guardian/guardian_message.h"
#include "host/guardian/guardian_session.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

using host::GuardianInput;
using host::GuardianMessage;
using host::GuardianSession;

constexpr int wrongUsage = 2;

void tell(GuardianMessage::Kind kind, const QString &text = QString())
{
    const QByteArray line = host::toLine({kind, text});
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fflush(stdout); // whether anybody hears it changes nothing here
}

void tellPutBack(const QStringList &names)
{
    for (const QString &name : names)
        tell(GuardianMessage::Kind::putBack, name);
}

GuardianSession::Ending waitForEnding()
{
    host::CommandReader commands;
    for (;;) {
        const GuardianInput input = host::waitForInput();
        if (input.kind != GuardianInput::Kind::bytes)
            return GuardianSession::Ending::hostsLoss;
        if (commands.feed(input.bytes))
            return GuardianSession::Ending::normal;
    }
}

int guard(const QString &stateFolder)
{
    GuardianSession session(stateFolder);
    const bool isReady = session.begin();
    tellPutBack(session.leftovers());
    if (!isReady) {
        tell(session.isHeldByAnother() ? GuardianMessage::Kind::busy : GuardianMessage::Kind::failed, session.errorText());
        return EXIT_FAILURE;
    }
    tell(GuardianMessage::Kind::ready);
    const host::PutBack result = session.end(waitForEnding());
    tellPutBack(result.names);
    if (result.isDone)
        tell(GuardianMessage::Kind::done);
    else
        tell(GuardianMessage::Kind::failed, QStringLiteral("The volumes could not be put back; the next start tries again."));
    return result.isDone ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char *argv[])
{
    host::detachFromHost();
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 2)
        return guard(arguments[1]);
    std::fputs("usage: volume_guardian STATE_FOLDER\n", stderr);
    return wrongUsage;
}
