// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Until `releaseDisplay` the process ends with 3 and one line on standard error where Qt would abort, as it does without a
/// display. Qt alone knows whether the one it is to use can be opened. Around the making of the application, on its thread.
/// Linux; elsewhere there always is a display.
///
/// \param verdictFile gets `noDisplayWords` then; empty: none
void guardDisplay(const QString &verdictFile);

/// There is one. What Qt had to say meanwhile is said now.
void releaseDisplay();

} // namespace host
