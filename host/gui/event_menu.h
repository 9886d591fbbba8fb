// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

class QMenu;
class QObject;

namespace host {

/// One entry for each event that a developer can simulate; `raise` is called with its bit. `receiver` bounds the connections.
void fillEventMenu(QMenu &menu, QObject *receiver, const std::function<void(int)> &raise);

/// Gives the entries their texts in the language in force.
void retranslateEventMenu(QMenu &menu);

} // namespace host
