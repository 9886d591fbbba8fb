// SPDX-License-Identifier: Apache-2.0
#include "host/gui/interrupt_watcher.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace host {

namespace {

constexpr std::array<int, 2> watchedSignals{SIGINT, SIGTERM};

// A handler can reach nothing but a global.
int writeEnd = -1;

void relay(int number)
{
    const int savedError = errno;
    const auto byte = static_cast<char>(number);
    static_cast<void>(::write(writeEnd, &byte, 1) == 1); // a full pipe already holds an interruption
    errno = savedError;
}

void handle(void (*handler)(int))
{
    for (const int number : watchedSignals) {
        struct sigaction action = {};
        action.sa_handler = handler;
        // The system's own handling comes back after the first one: who asks twice does not want to wait.
        action.sa_flags = SA_RESTART | (handler == relay ? static_cast<int>(SA_RESETHAND) : 0);
        sigemptyset(&action.sa_mask);
        sigaction(number, &action, nullptr);
    }
}

} // namespace

struct InterruptWatcher::Private {
    explicit Private(InterruptWatcher &owner)
    {
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, &owner, [this, &owner] {
            char number = 0;
            if (::read(ends[0], &number, 1) == 1)
                emit owner.interrupted(number == SIGINT ? interruptedExitCode : terminatedExitCode);
        });
        writeEnd = ends[1];
        handle(relay);
    }

    ~Private()
    {
        handle(SIG_DFL);
        writeEnd = -1;
        for (const int end : ends) {
            if (end >= 0)
                ::close(end);
        }
    }
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    std::array<int, 2> ends{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

InterruptWatcher::InterruptWatcher(QObject *parent) : QObject(parent), d_(std::make_unique<Private>(*this)) {}

InterruptWatcher::~InterruptWatcher() = default;

} // namespace host
