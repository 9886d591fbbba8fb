// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// The capture source that hears what `device` is given to play, where the user names none. Where the sound server has a
/// monitor of each output that monitor; where it need not, 2 s at most for a look at the inputs. Any thread.
QString defaultSource(const QString &device);

/// The monitor of that device where it is among the inputs, else its loopback.
QString monitorOrLoopback(const QString &device, const QStringList &inputs);

} // namespace host
