// SPDX-License-Identifier: Apache-2.0
#pragma once

class QProcess;

namespace host {

/// Ends a program that ends when its input does; kills it where it does not within three seconds. Returns when it is over.
void endByClosedInput(QProcess &process);

} // namespace host
