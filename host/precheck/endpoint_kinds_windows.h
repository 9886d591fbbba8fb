// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace host {

/// An active endpoint of the system.
struct EndpointKind {
    QString id;   ///< the system's
    QString name; ///< as the sound library lists it
    bool isInput = false;
    bool isRootEnumerated = false; ///< its driver was installed without any hardware: see `VirtualDevices`
};

/// In the system's order; nothing when it does not answer. Initialises COM for its own length; any thread.
std::optional<QList<EndpointKind>> readEndpointKinds();

/// Wine's own library has a function that Windows' has not.
bool isUnderWine();

} // namespace host
