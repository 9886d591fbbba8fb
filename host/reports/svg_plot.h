// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QXmlStreamWriter;

namespace host {

/// What every plot has: a name for those who do not see it, a scale, and how it is labelled.
struct PlotScale {
    QString id;    ///< unique within the document; letters, digits and hyphens
    QString title; ///< what is shown
    QString unit;
    double bottom = 0.0;
    double top = 1.0;
    double grid = 0.25; ///< distance of the lines behind the plot, above 0
};

/// One bar for each value, from the bottom of the scale up; nothing, and a note, where there is no value. As many labels.
struct BarPlot {
    PlotScale scale;
    QStringList labels;
    QList<std::optional<double>> values;
};

/// What a wave covers in each of equal steps, from `lowest` to `highest`.
struct WavePlot {
    PlotScale scale;
    double stepMs = 1.0;
    QList<double> lowest;
    QList<double> highest;
};

/// Write an <svg> with role "img", a title and a description in words of every value that a reader needs.
void writePlot(QXmlStreamWriter &xml, const BarPlot &plot);
void writePlot(QXmlStreamWriter &xml, const WavePlot &plot);

} // namespace host
