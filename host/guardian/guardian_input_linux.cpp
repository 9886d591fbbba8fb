// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_input.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace host {

namespace {

// What asks a process to end; held back from the moment of the detachment and read as input.
sigset_t endingSignals()
{
    sigset_t asked;
    sigemptyset(&asked);
    sigaddset(&asked, SIGTERM);
    sigaddset(&asked, SIGHUP);
    return asked;
}

int signalDescriptor()
{
    static const int descriptor = [] {
        const sigset_t asked = endingSignals();
        return signalfd(-1, &asked, SFD_CLOEXEC | SFD_NONBLOCK);
    }();
    return descriptor;
}

GuardianInput readPipe()
{
    std::array<char, 256> buffer{};
    const ssize_t byteCount = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (byteCount > 0)
        return {GuardianInput::Kind::bytes, QByteArray(buffer.data(), byteCount)};
    if (byteCount < 0 && (errno == EINTR || errno == EAGAIN))
        return {GuardianInput::Kind::bytes, {}};
    return {GuardianInput::Kind::ended, {}};
}

} // namespace

void detachFromHost()
{
    setsid(); // fails only for the leader of a group, which is in no other group that could be ended
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGQUIT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN); // nobody may be left to hear what is told
    const sigset_t asked = endingSignals();
    sigprocmask(SIG_BLOCK, &asked, nullptr);
}

GuardianInput waitForInput()
{
    std::array<pollfd, 2> sources{{{STDIN_FILENO, POLLIN, 0}, {signalDescriptor(), POLLIN, 0}}};
    while (poll(sources.data(), sources.size(), -1) < 0) {
        if (errno != EINTR && errno != EAGAIN)
            return {GuardianInput::Kind::ended, {}};
    }
    if (sources[1].revents != 0)
        return {GuardianInput::Kind::terminated, {}};
    return readPipe();
}

} // namespace host
