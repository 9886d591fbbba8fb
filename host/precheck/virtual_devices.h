// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// Names of the output devices that no hardware stands behind, as the sound library lists them: a verdict on one of them says
/// nothing about a machine.
///
/// Linux: sinks that belong to no card and do not claim to be hardware, such as null sinks and combinations. Windows: under
/// Wine all of them, as Wine's endpoints are those of another system; else those whose driver the system's root enumerator
/// lists, as it does a driver that was installed without any hardware. A virtual cable whose driver pretends to sit on a bus
/// of its own cannot be told. With the sound library's drivers "dummy" and "disk" the list is unknown and `areAll` is set.
struct VirtualDevices {
    QStringList names;
    bool areAll = false;
    bool isKnown = true; ///< false: the system did not answer, and each of them may be virtual

    bool contains(const QString &name) const { return areAll || names.contains(name); }
};

/// Asks the system, 2 s at most. Any thread.
VirtualDevices readVirtualDevices();

/// Key of the reason not to test a device, with its name for "%1"; null where it may be tested. What the system does not tell
/// is no permission.
const char *virtualRefusal(const VirtualDevices &devices, const QString &name) noexcept;

} // namespace host
