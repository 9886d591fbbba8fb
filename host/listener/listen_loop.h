// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/capture.h"
#include "host/listener/listener_options.h"
#include "host/measure/digit_clips.h"

namespace host {

enum class ListenerExit { told = 0, usage = 2, noSource = 3, lost = 4 };

/// Catches the signals that ask a program to end.
void catchEndSignals();

/// Listens and writes events until it is told to end or the source is lost.
ListenerExit listen(Capture &capture, const measure::DigitClips &clips, const ListenerOptions &options);

/// Writes a line to standard output at once. False when nobody reads it any more.
bool writeLine(const QByteArray &line);

} // namespace host
