// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "benchmarks/pairs.h"
#include "benchmarks/playback_widgets.h"
#include "benchmarks/workloads.h"
#include "utils/high_contrast_style.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

namespace bench {

namespace {

constexpr qsizetype megabyte = 1'000'000;

double secondsToRewrite(const QString &sheet, const QList<QColor> &colors)
{
    return secondsOf([&] { ostra::utils::highContrastStyleSheet(sheet, colors, {}); });
}

// What a change of theme makes Qt do: the sheet is parsed and every widget of the shown dialog gets its rules anew.
double secondsToApply(QWidget &dialog, const QString &sheet)
{
    dialog.setStyleSheet({});
    QCoreApplication::processEvents();
    return secondsOf([&] {
        dialog.setStyleSheet(sheet);
        QCoreApplication::sendPostedEvents();
    });
}

Row tenthOf(const std::string &figure, const Comparison &comparison)
{
    return ratioRow(figure, "QWidget::setStyleSheet of the same text on the shown playback form", 0.1, comparison);
}

} // namespace

void contrastFigures()
{
    const QList<QColor> colors = contrastColors();
    PlaybackWidgets form;
    form.dialog.show();
    QCoreApplication::processEvents();
    for (const bool isLong : {false, true}) {
        const QString sheet = isLong ? longSheet(megabyte) : productSheet();
        const Comparison comparison = compare([&] { return fastest([&] { return secondsToRewrite(sheet, colors); }); },
                                              [&] { return fastest([&] { return secondsToApply(form.dialog, sheet); }); });
        const Row row =
            tenthOf(isLong ? "high-contrast rewriting, sheet of 1 MB" : "high-contrast rewriting, product sheet", comparison);
        print(isLong ? withoutGoal(row) : row);
    }
    form.dialog.setStyleSheet({});
    const QString whole = longSheet(megabyte);
    const QString quarter = longSheet(megabyte / 4);
    const Comparison growth = compare([&] { return fastest([&] { return secondsToRewrite(whole, colors); }); },
                                      [&] { return fastest([&] { return secondsToRewrite(quarter, colors); }); });
    const double lengthRatio = static_cast<double>(whole.size()) / static_cast<double>(quarter.size());
    print(ratioRow("high-contrast rewriting, growth to a sheet " + shown(lengthRatio) + " times as long",
                   "linear, and a tenth more", lengthRatio * 1.1, growth));
}

} // namespace bench
