// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// Names of the output devices that no hardware stands behind, as the sound library lists them: a verdict on one of them says
/// nothing about a machine.
///
/// Linux: sinks that belong to no card and do not claim to be hardware, such as null sinks and combinations. Windows: under
/// Wine all of them, as Wine's endpoints are those of another system; else none, since the system does not tell. With the
/// sound library's drivers "dummy" and "disk" the list is unknown and `areAll` is set.
struct VirtualDevices {
    QStringList names;
    bool areAll = false;

    bool contains(const QString &name) const { return areAll || names.contains(name); }
};

/// Asks the sound server, 2 s at most; without an answer nothing is known to be virtual. Any thread.
VirtualDevices readVirtualDevices();

} // namespace host
