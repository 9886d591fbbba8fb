// SPDX-License-Identifier: Apache-2.0
#include "host/core/sound_environment.h"

#include <QByteArray>
#include <QtGlobal>

namespace host {

// The C run-time library hands the variable on to the process's own block on Windows, where the sound library looks.
void keepInterruptSignals() { qputenv("SDL_NO_SIGNAL_HANDLERS", QByteArrayLiteral("1")); }

} // namespace host
