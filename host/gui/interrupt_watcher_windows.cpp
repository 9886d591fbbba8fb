// SPDX-License-Identifier: Apache-2.0
#include "host/gui/interrupt_watcher.h"

#include <QMetaObject>

#include <windows.h>

#include <atomic>

namespace host {

namespace {

constexpr DWORD closingGraceMilliseconds = 4000; // the system ends the process 5 s after a console is closed

// The system calls the handler on a thread of its own and hands nothing to it.
std::atomic<InterruptWatcher *> watcher = nullptr;

BOOL WINAPI relay(DWORD kind)
{
    InterruptWatcher *const target = watcher.exchange(nullptr);
    if (target == nullptr)
        return FALSE;
    const int code = kind == CTRL_C_EVENT ? InterruptWatcher::interruptedExitCode : InterruptWatcher::terminatedExitCode;
    QMetaObject::invokeMethod(
        target, [target, code] { emit target->interrupted(code); }, Qt::QueuedConnection);
    if (kind == CTRL_CLOSE_EVENT || kind == CTRL_LOGOFF_EVENT || kind == CTRL_SHUTDOWN_EVENT)
        Sleep(closingGraceMilliseconds); // the process ends when this returns; until then the run gives the volume back
    return TRUE;
}

} // namespace

struct InterruptWatcher::Private {};

InterruptWatcher::InterruptWatcher(QObject *parent) : QObject(parent)
{
    watcher = this;
    SetConsoleCtrlHandler(relay, TRUE);
}

InterruptWatcher::~InterruptWatcher()
{
    watcher = nullptr;
    SetConsoleCtrlHandler(relay, FALSE);
}

} // namespace host
