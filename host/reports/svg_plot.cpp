// SPDX-License-Identifier: Apache-2.0
#include "host/reports/svg_plot.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr double width = 640.0;
constexpr double height = 234.0;
constexpr double left = 56.0;
constexpr double right = 12.0;
constexpr double above = 28.0;
constexpr double unitLine = 12.0;
constexpr double below = 34.0;
constexpr double innerWidth = width - left - right;
constexpr double innerHeight = height - above - below;
constexpr int mostGridLines = 40;
constexpr qsizetype mostLabels = 12;

QString coordinate(double value) { return QString::number(value, 'f', 1); }

QString shortNumber(double value) { return QString::number(value, 'g', 4); }

double heightOf(const PlotScale &scale, double value)
{
    const double share = (std::clamp(value, scale.bottom, scale.top) - scale.bottom) / (scale.top - scale.bottom);
    return above + innerHeight * (1.0 - share);
}

void attribute(QXmlStreamWriter &xml, const char *name, const QString &value)
{
    xml.writeAttribute(QLatin1String(name), value);
}

void attribute(QXmlStreamWriter &xml, const char *name, double value) { attribute(xml, name, coordinate(value)); }

void writeText(QXmlStreamWriter &xml, double x, double y, const char *anchor, const QString &text)
{
    xml.writeStartElement(QStringLiteral("text"));
    attribute(xml, "x", x);
    attribute(xml, "y", y);
    attribute(xml, "text-anchor", QLatin1String(anchor));
    xml.writeCharacters(text);
    xml.writeEndElement();
}

void beginPlot(QXmlStreamWriter &xml, const PlotScale &scale, const QString &description)
{
    xml.writeStartElement(QStringLiteral("svg"));
    attribute(xml, "xmlns", QStringLiteral("http://www.w3.org/2000/svg"));
    attribute(xml, "viewBox", QStringLiteral("0 0 %1 %2").arg(width).arg(height));
    attribute(xml, "role", QStringLiteral("img"));
    attribute(xml, "aria-labelledby", QStringLiteral("%1-title %1-description").arg(scale.id));
    xml.writeStartElement(QStringLiteral("title"));
    attribute(xml, "id", scale.id + QStringLiteral("-title"));
    xml.writeCharacters(scale.title);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("desc"));
    attribute(xml, "id", scale.id + QStringLiteral("-description"));
    xml.writeCharacters(description);
    xml.writeEndElement();
}

void writeGrid(QXmlStreamWriter &xml, const PlotScale &scale)
{
    const int count = std::min(mostGridLines, static_cast<int>(std::lround((scale.top - scale.bottom) / scale.grid)));
    for (int line = 0; line <= count; ++line) {
        const double value = scale.bottom + line * scale.grid;
        const double y = heightOf(scale, value);
        xml.writeStartElement(QStringLiteral("line"));
        attribute(xml, "class", QStringLiteral("grid"));
        attribute(xml, "x1", left);
        attribute(xml, "x2", width - right);
        attribute(xml, "y1", y);
        attribute(xml, "y2", y);
        xml.writeEndElement();
        writeText(xml, left - 6, y + 4, "end", shortNumber(value));
    }
    writeText(xml, 2, unitLine, "start", scale.unit);
}

QString barWords(const BarPlot &plot)
{
    QStringList words;
    for (qsizetype index = 0; index < plot.values.size(); ++index) {
        const std::optional<double> &value = plot.values.at(index);
        words.append(
            QStringLiteral("%1: %2").arg(plot.labels.value(index), value ? shortNumber(*value) : QStringLiteral("not known")));
    }
    return QStringLiteral("In %1: %2.").arg(plot.scale.unit, words.join(QStringLiteral(", ")));
}

void writeBar(QXmlStreamWriter &xml, const BarPlot &plot, qsizetype index)
{
    const double slot = innerWidth / static_cast<double>(plot.values.size());
    const double x = left + slot * static_cast<double>(index);
    const std::optional<double> &value = plot.values.at(index);
    if (index % ((plot.values.size() + mostLabels - 1) / mostLabels) == 0)
        writeText(xml, x + slot / 2, height - below + 16, "middle", plot.labels.value(index));
    if (!value) {
        writeText(xml, x + slot / 2, height - below - 6, "middle", QStringLiteral("?"));
        return;
    }
    const double top = heightOf(plot.scale, *value);
    xml.writeStartElement(QStringLiteral("rect"));
    attribute(xml, "class", QStringLiteral("data"));
    attribute(xml, "x", x + slot * 0.15);
    attribute(xml, "y", top);
    attribute(xml, "width", slot * 0.7);
    attribute(xml, "height", above + innerHeight - top);
    xml.writeEndElement();
}

QString waveOutline(const WavePlot &plot)
{
    const qsizetype count = std::min(plot.lowest.size(), plot.highest.size());
    const double step = innerWidth / static_cast<double>(std::max<qsizetype>(1, count - 1));
    QStringList points;
    const auto add = [&](qsizetype index, double value) {
        points.append(coordinate(left + step * static_cast<double>(index)) + u',' + coordinate(heightOf(plot.scale, value)));
    };
    for (qsizetype index = 0; index < count; ++index)
        add(index, plot.highest.at(index));
    for (qsizetype index = count; index-- > 0;)
        add(index, plot.lowest.at(index));
    return points.join(u' ');
}

QString waveWords(const WavePlot &plot, double milliseconds)
{
    const auto reach = [](const QList<double> &values) {
        const auto [low, high] = std::minmax_element(values.begin(), values.end());
        return values.isEmpty() ? 0.0 : std::max(std::abs(*low), std::abs(*high));
    };
    return QStringLiteral("%1 ms of sound, reaching %2 of full scale.")
        .arg(shortNumber(milliseconds), shortNumber(std::max(reach(plot.lowest), reach(plot.highest))));
}

} // namespace

void writePlot(QXmlStreamWriter &xml, const BarPlot &plot)
{
    beginPlot(xml, plot.scale, barWords(plot));
    writeGrid(xml, plot.scale);
    for (qsizetype index = 0; index < plot.values.size(); ++index)
        writeBar(xml, plot, index);
    xml.writeEndElement();
}

void writePlot(QXmlStreamWriter &xml, const WavePlot &plot)
{
    const double milliseconds = plot.stepMs * static_cast<double>(std::min(plot.lowest.size(), plot.highest.size()));
    beginPlot(xml, plot.scale, waveWords(plot, milliseconds));
    writeGrid(xml, plot.scale);
    xml.writeStartElement(QStringLiteral("polygon"));
    attribute(xml, "class", QStringLiteral("data"));
    attribute(xml, "points", waveOutline(plot));
    xml.writeEndElement();
    writeText(xml, left, height - below + 16, "start", QStringLiteral("0"));
    writeText(xml, width - right, height - below + 16, "end", QStringLiteral("%1 ms").arg(shortNumber(milliseconds)));
    xml.writeEndElement();
}

} // namespace host
