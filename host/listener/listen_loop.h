// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/capture.h"
#include "host/listener/ear.h"
#include "host/listener/listener_options.h"

#include <QByteArray>

#include <functional>
#include <memory>

namespace host {

enum class ListenerExit { told = 0, usage = 2, noSource = 3, lost = 4 };

/// Catches the signals that ask a program to end.
void catchEndSignals();

using LineWriter = std::function<void(const QByteArray &)>;
/// Makes what listens; it writes its events by the writer.
using EarMaker = std::function<std::unique_ptr<Ear>(LineWriter)>;

/// Listens and writes events until it is told to end or the source is lost.
ListenerExit listen(Capture &capture, const EarMaker &makeEar, const ListenerOptions &options);

/// Writes a line to standard output at once. False when nobody reads it any more.
bool writeLine(const QByteArray &line);

} // namespace host
