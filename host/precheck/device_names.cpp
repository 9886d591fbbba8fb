// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/device_names.h"

namespace host {

QString DeviceNames::next(const QString &description)
{
    const int count = ++counts_[description];
    return count == 1 ? description : QStringLiteral("%1 (%2)").arg(description).arg(count);
}

} // namespace host
