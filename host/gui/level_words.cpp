// SPDX-License-Identifier: Apache-2.0
#include "host/gui/level_words.h"

#include "host/gui/key_text.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr double silentDbfs = -50.0;
constexpr double quietDbfs = -35.0;
constexpr double fullScaleDbfs = -0.1;
constexpr double lowestDbfs = -120.0;
constexpr double samplesPerSecond = 100.0;

QString wordOf(Loudness loudness)
{
    switch (loudness) {
    case Loudness::silent:
        return hostText("METER_SILENT");
    case Loudness::quiet:
        return hostText("METER_QUIET");
    case Loudness::tooLoud:
        return hostText("METER_TOO_LOUD");
    case Loudness::good:
        break;
    }
    return hostText("METER_GOOD");
}

QString decibels(double level) { return QLocale().toString(level, 'f', 0); }

} // namespace

Loudness loudnessOf(double rmsDbfs, double peakDbfs)
{
    if (peakDbfs >= fullScaleDbfs)
        return Loudness::tooLoud;
    if (rmsDbfs < silentDbfs)
        return Loudness::silent;
    return rmsDbfs < quietDbfs ? Loudness::quiet : Loudness::good;
}

QString levelWords(double rmsDbfs, double peakDbfs)
{
    return hostText("METER_WORDS").arg(decibels(rmsDbfs), decibels(peakDbfs), wordOf(loudnessOf(rmsDbfs, peakDbfs)));
}

QList<double> waveOf(const QList<HeardDigit> &digits)
{
    constexpr qsizetype stepsPerPair = 20 / envelopeStepMs;
    QList<double> wave;
    for (const HeardDigit &digit : digits) {
        const DigitMeasurement measured = digit.measured.value_or(DigitMeasurement());
        const qsizetype count = std::min(measured.lowest.size(), measured.highest.size());
        for (qsizetype first = 0; first < count; first += stepsPerPair) {
            const qsizetype end = std::min(first + stepsPerPair, count);
            wave.append(*std::min_element(measured.lowest.begin() + first, measured.lowest.begin() + end));
            wave.append(*std::max_element(measured.highest.begin() + first, measured.highest.begin() + end));
        }
    }
    return wave;
}

QString waveWords(const QList<double> &wave, WaveOf what)
{
    if (wave.isEmpty())
        return {};
    double highest = 0;
    for (const double sample : wave)
        highest = std::max(highest, std::abs(sample));
    const double seconds = static_cast<double>(wave.size()) / samplesPerSecond;
    const double peakDbfs = highest > 0 ? std::max(lowestDbfs, 20 * std::log10(highest)) : lowestDbfs;
    return hostText(what == WaveOf::digits ? "METER_DIGITS_WORDS" : "METER_WAVE_WORDS")
        .arg(QLocale().toString(seconds, 'f', 1), decibels(peakDbfs));
}

} // namespace host
