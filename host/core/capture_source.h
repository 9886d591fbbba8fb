// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Whether a capture source hears a device's digital signal and not the air, by what sound servers call such sources.
inline bool isMonitor(const QString &source)
{
    return source.startsWith(QStringLiteral("Monitor of ")) || source.endsWith(QStringLiteral(".monitor"));
}

} // namespace host
