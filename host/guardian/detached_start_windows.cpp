// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/detached_start.h"

#include <QProcess>

#include <windows.h>

namespace host {

namespace {

// A job that does not allow it would refuse the start.
bool mayLeaveJob()
{
    BOOL isInJob = FALSE;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    return IsProcessInJob(GetCurrentProcess(), nullptr, &isInJob) != FALSE && isInJob != FALSE &&
           QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits, sizeof limits, nullptr) != FALSE &&
           (limits.BasicLimitInformation.LimitFlags & JOB_OBJECT_LIMIT_BREAKAWAY_OK) != 0;
}

} // namespace

// Without a window it gets a console of its own, so that neither Ctrl-C nor the closing of the host's console reaches it.
void prepareDetachedStart(QProcess &process)
{
    const DWORD flags = CREATE_NO_WINDOW | CREATE_NEW_PROCESS_GROUP | (mayLeaveJob() ? CREATE_BREAKAWAY_FROM_JOB : 0);
    process.setCreateProcessArgumentsModifier([flags](QProcess::CreateProcessArguments *arguments) {
        arguments->flags &= ~static_cast<unsigned long>(CREATE_NEW_CONSOLE | DETACHED_PROCESS);
        arguments->flags |= flags;
    });
}

} // namespace host
