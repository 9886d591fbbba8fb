// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/clip_listener.h"
#include "host/listener/signal_meter.h"
#include "host/listener/stream_listener.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace host {

/// The listener's output: one JSON object a line, without a line end. Moments are milliseconds of the system-wide steady
/// clock (std::chrono::steady_clock), which every process of the machine shares.
QByteArray sourceLine(const QString &name);
/// Also tells the steady clock's and the calendar's milliseconds (since 1970, UTC) of one moment.
/// \param sourceChannelCount of the source itself; 0 when not known
QByteArray readyLine(const QString &source, const QString &language, int sourceChannelCount);
/// "digit" for one of the ten, "sound" for anything else.
QByteArray soundLine(const HeardSound &sound);
/// A place that is like the clip that is sought.
QByteArray clipLine(const HeardClip &clip);
/// A tenth of a second: peak and RMS, the channels apart, and lowest and highest sample of each fiftieth in turn.
QByteArray meterLine(const MeterReading &reading);
/// \param arrivedFrameCount frames that the level was taken from: those since the level before it; none is no silence
/// \param droppedFrameCount frames that were lost since the start because the program was too slow; told when above 0.
QByteArray levelLine(double loudestDbfs, std::uint64_t arrivedFrameCount, std::uint64_t droppedFrameCount);
QByteArray lostLine();

} // namespace host
