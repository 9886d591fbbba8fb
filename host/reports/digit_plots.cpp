// SPDX-License-Identifier: Apache-2.0
#include "host/reports/digit_plots.h"

#include "host/reports/svg_plot.h"

#include <QJsonArray>
#include <QXmlStreamWriter>

#include <array>
#include <cmath>

namespace host {

namespace {

// A report is data: one that claims a million points must not make a page that no browser opens.
constexpr qsizetype mostPoints = 2000;
constexpr qsizetype mostBands = 48;

QString nameOf(const QJsonObject &digit)
{
    return QStringLiteral("%1.%2")
        .arg(digit.value(QLatin1String("sequence")).toInt())
        .arg(digit.value(QLatin1String("position")).toInt());
}

QList<double> numbersOf(const QJsonValue &list, qsizetype most)
{
    QList<double> numbers;
    const QJsonArray values = list.toArray();
    for (const QJsonValue value : values) {
        if (numbers.size() < most)
            numbers.append(value.toDouble());
    }
    return numbers;
}

template <typename Plot>
void writeFigure(QXmlStreamWriter &xml, const Plot &plot)
{
    xml.writeStartElement(QStringLiteral("figure"));
    xml.writeTextElement(QStringLiteral("figcaption"), plot.scale.title);
    writePlot(xml, plot);
    xml.writeEndElement();
}

void writeOverview(QXmlStreamWriter &xml, const QJsonArray &digits, const char *key, const PlotScale &scale)
{
    BarPlot plot{scale, {}, {}};
    for (const QJsonValue digit : digits) {
        const QJsonValue value = digit[QLatin1String(key)];
        plot.labels.append(nameOf(digit.toObject()));
        plot.values.append(value.isDouble() ? std::optional(value.toDouble()) : std::nullopt);
    }
    writeFigure(xml, plot);
}

// The waves of all digits at one scale would hide a quiet one: each has its own, which the axis tells.
double reachOf(const WavePlot &plot)
{
    double reach = 0.01;
    for (const QList<double> *values : {&plot.lowest, &plot.highest}) {
        for (const double value : *values)
            reach = std::max(reach, std::abs(value));
    }
    return std::min(1.0, std::ceil(reach * 20.0) / 20.0);
}

void writeWave(QXmlStreamWriter &xml, const QString &id, const QString &title, const QJsonObject &measured)
{
    WavePlot plot;
    plot.lowest = numbersOf(measured.value(QLatin1String("lowest")), mostPoints);
    plot.highest = numbersOf(measured.value(QLatin1String("highest")), mostPoints);
    plot.stepMs = measured.value(QLatin1String("envelopeStepMs")).toDouble(1.0);
    const double reach = reachOf(plot);
    plot.scale = {id + QStringLiteral("-wave"), title, QStringLiteral("full scale = 1"), -reach, reach, reach / 2};
    if (!plot.lowest.isEmpty() && !plot.highest.isEmpty())
        writeFigure(xml, plot);
}

void writeSpectrum(QXmlStreamWriter &xml, const QString &id, const QString &name, const QJsonObject &measured)
{
    const QList<double> levels = numbersOf(measured.value(QLatin1String("bandLevelsDbfs")), mostBands);
    if (levels.isEmpty())
        return;
    BarPlot plot{{id + QStringLiteral("-spectrum"), QStringLiteral("Spectrum of digit %1, third-octave bands").arg(name),
                  QStringLiteral("dBFS, by Hz"), -120.0, 0.0, 20.0},
                 {},
                 {}};
    const double lowest = measured.value(QLatin1String("lowestBandHz")).toDouble(100.0);
    for (qsizetype band = 0; band < levels.size(); ++band) {
        plot.labels.append(bandName(lowest * std::pow(10.0, static_cast<double>(band) / 10.0)));
        plot.values.append(levels.at(band));
    }
    writeFigure(xml, plot);
}

void writeMeasured(QXmlStreamWriter &xml, const QJsonObject &digit, qsizetype number)
{
    const QJsonObject measured = digit.value(QLatin1String("measured")).toObject();
    if (measured.isEmpty())
        return;
    const QString name = nameOf(digit);
    const QString id = QStringLiteral("digit-%1").arg(number);
    xml.writeTextElement(QStringLiteral("h3"), QStringLiteral("Digit %1").arg(name));
    xml.writeStartElement(QStringLiteral("div"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("pair"));
    writeWave(xml, id, QStringLiteral("Waveform of digit %1").arg(name), measured);
    writeSpectrum(xml, id, name, measured);
    xml.writeEndElement();
}

} // namespace

QString bandName(double hz)
{
    constexpr std::array<double, 10> nominal{100, 125, 160, 200, 250, 315, 400, 500, 630, 800};
    constexpr double kilo = 1000.0;
    const auto band = static_cast<int>(std::lround(10 * std::log10(hz / nominal[0])));
    const int decade = band < 0 ? 0 : band / 10;
    const double centre = band < 0 ? hz : nominal[static_cast<std::size_t>(band % 10)] * std::pow(10.0, decade);
    return centre < kilo ? QString::number(centre, 'f', 0) : QString::number(centre / kilo, 'g', 3) + u'k';
}

void writeRecordingPlot(QXmlStreamWriter &xml, const QJsonObject &report)
{
    writeWave(xml, QStringLiteral("recording"), QStringLiteral("Waveform of what the dialog played back"),
              report.value(QLatin1String("recording")).toObject());
}

void writeDigitPlots(QXmlStreamWriter &xml, const QJsonObject &report)
{
    const QJsonArray digits = report.value(QLatin1String("digits")).toArray();
    if (digits.isEmpty())
        return;
    xml.writeTextElement(QStringLiteral("h2"), QStringLiteral("What was heard"));
    writeOverview(xml, digits, "score",
                  {QStringLiteral("scores"), QStringLiteral("Likeness to the clip, by sequence and digit"),
                   QStringLiteral("0 to 1"), 0.0, 1.0, 0.25});
    writeOverview(
        xml, digits, "levelDbfs",
        {QStringLiteral("levels"), QStringLiteral("Level, by sequence and digit"), QStringLiteral("dBFS"), -80.0, 0.0, 20.0});
    for (qsizetype index = 0; index < digits.size(); ++index)
        writeMeasured(xml, digits.at(index).toObject(), index + 1);
}

} // namespace host
