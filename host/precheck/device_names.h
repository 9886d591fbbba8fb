// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

namespace host {

/// The names by which the sound library lists endpoints: their descriptions, and from the second of the same description on
/// with " (2)", " (3)" behind. Ask in the order of the system's list.
class DeviceNames {
public:
    QString next(const QString &description);

private:
    QHash<QString, int> counts_;
};

} // namespace host
