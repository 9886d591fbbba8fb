// SPDX-License-Identifier: Apache-2.0
#include "host/listener/event_lines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <chrono>
#include <cmath>

namespace host {

namespace {

template <typename Clock>
double milliseconds(std::chrono::time_point<Clock> time)
{
    return std::floor(std::chrono::duration<double, std::milli>(time.time_since_epoch()).count());
}

double rounded(double value, double steps) { return std::round(value * steps) / steps; }

QJsonArray listOf(const QList<double> &values, double steps)
{
    QJsonArray list;
    for (const double value : values)
        list.append(rounded(value, steps));
    return list;
}

QJsonObject measurementOf(const DigitMeasurement &measured)
{
    QJsonObject object{{QStringLiteral("peakDbfs"), rounded(measured.peakDbfs, 10)},
                       {QStringLiteral("channelDbfs"), listOf(measured.channelDbfs, 10)},
                       {QStringLiteral("clippedFrameCount"), measured.clippedFrameCount},
                       {QStringLiteral("lowest"), listOf(measured.lowest, 10'000)},
                       {QStringLiteral("highest"), listOf(measured.highest, 10'000)},
                       {QStringLiteral("bandLevelsDbfs"), listOf(measured.bandLevelsDbfs, 10)}};
    if (measured.snrDb)
        object.insert(QStringLiteral("snrDb"), rounded(*measured.snrDb, 10));
    if (measured.residualDbfs)
        object.insert(QStringLiteral("residualDbfs"), rounded(*measured.residualDbfs, 10));
    if (measured.clockErrorPpm)
        object.insert(QStringLiteral("clockErrorPpm"), rounded(*measured.clockErrorPpm, 10));
    return object;
}

QByteArray line(const char *event, QJsonObject object)
{
    object.insert(QLatin1String("event"), QLatin1String(event));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray sourceLine(const QString &name) { return line("source", {{QStringLiteral("name"), name}}); }

QByteArray readyLine(const QString &source, const QString &language, int sourceChannelCount)
{
    return line("ready", {{QStringLiteral("source"), source},
                          {QStringLiteral("language"), language},
                          {QStringLiteral("sampleRate"), static_cast<int>(captureRate)},
                          {QStringLiteral("channels"), static_cast<int>(captureChannelCount)},
                          {QStringLiteral("sourceChannels"), sourceChannelCount},
                          {QStringLiteral("steadyMs"), milliseconds(std::chrono::steady_clock::now())},
                          {QStringLiteral("utcMs"), milliseconds(std::chrono::system_clock::now())}});
}

QByteArray soundLine(const HeardSound &sound)
{
    QJsonObject object{{QStringLiteral("startMs"), milliseconds(sound.start)},
                       {QStringLiteral("durationMs"), static_cast<double>(sound.duration.count())},
                       {QStringLiteral("levelDbfs"), rounded(sound.levelDbfs, 10)},
                       {QStringLiteral("clipped"), sound.isClipped}};
    if (!sound.digit)
        return line("sound", object);
    object.insert(QStringLiteral("digit"), *sound.digit);
    object.insert(QStringLiteral("score"), rounded(sound.score, 10'000));
    object.insert(QStringLiteral("margin"), rounded(sound.margin, 10'000));
    if (sound.measured)
        object.insert(QStringLiteral("measured"), measurementOf(*sound.measured));
    return line("digit", object);
}

QByteArray clipLine(const HeardClip &clip)
{
    return line("clip", {{QStringLiteral("startMs"), milliseconds(clip.start)},
                         {QStringLiteral("durationMs"), static_cast<double>(clip.duration.count())},
                         {QStringLiteral("score"), rounded(clip.score, 10'000)},
                         {QStringLiteral("found"), clip.isFound},
                         {QStringLiteral("levelDbfs"), rounded(clip.levelDbfs, 10)},
                         {QStringLiteral("clipped"), clip.isClipped}});
}

QByteArray meterLine(const MeterReading &reading)
{
    QJsonArray wave;
    for (const MeterReading::Extremes &extremes : reading.wave) {
        wave.append(rounded(double{extremes.lowest}, 1000));
        wave.append(rounded(double{extremes.highest}, 1000));
    }
    return line("meter", {{QStringLiteral("atMs"), milliseconds(reading.end)},
                          {QStringLiteral("peakDbfs"), rounded(reading.peakDbfs, 10)},
                          {QStringLiteral("rmsDbfs"), rounded(reading.rmsDbfs, 10)},
                          {QStringLiteral("channelDbfs"),
                           QJsonArray{rounded(reading.channelDbfs[0], 10), rounded(reading.channelDbfs[1], 10)}},
                          {QStringLiteral("differenceDbfs"), rounded(reading.differenceDbfs, 10)},
                          {QStringLiteral("wave"), wave}});
}

QByteArray levelLine(double loudestDbfs, std::uint64_t arrivedFrameCount, std::uint64_t droppedFrameCount)
{
    QJsonObject object{{QStringLiteral("levelDbfs"), rounded(loudestDbfs, 10)},
                       {QStringLiteral("frames"), static_cast<double>(arrivedFrameCount)},
                       {QStringLiteral("atMs"), milliseconds(std::chrono::steady_clock::now())}};
    if (droppedFrameCount > 0)
        object.insert(QStringLiteral("droppedFrames"), static_cast<double>(droppedFrameCount));
    return line("level", object);
}

QByteArray lostLine() { return line("lost", {}); }

} // namespace host
