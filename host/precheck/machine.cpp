// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/machine.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace host {

Machine readMachine()
{
    Machine machine;
    machine.hostName = QSysInfo::machineHostName();
    machine.system = QSysInfo::prettyProductName();
    machine.kernel = QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion();
    machine.architecture = QSysInfo::currentCpuArchitecture();
    machine.soundServer = soundServerName();
    machine.programVersion = QCoreApplication::applicationVersion();
    return machine;
}

} // namespace host
