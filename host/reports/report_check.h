// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>

namespace host {

/// The first place at which a report of the current version has what its published schema does not allow, or contradicts
/// itself, in words such as "verdict/code is not one of those that are known"; empty when it is sound. Members that the
/// schema does not know are passed over: a later program of the same version may have written them. Beyond test, device and
/// verdict a member may be missing, as older programs knew fewer.
QString faultOf(const QJsonObject &report);

} // namespace host
