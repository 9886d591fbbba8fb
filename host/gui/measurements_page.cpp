// SPDX-License-Identifier: Apache-2.0
#include "host/gui/measurements_page.h"

#include "host/gui/key_text.h"
#include "host/gui/level_words.h"
#include "host/gui/spectrum_view.h"
#include "host/gui/wave_view.h"
#include "host/reports/run_report.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr int columnCount = 8;
constexpr double lowestShownDbfs = -120.0;

QString nameOf(const HeardDigit &digit) { return QStringLiteral("%1.%2").arg(digit.sequence).arg(digit.position); }

QString unknownText() { return hostText("VALUE_NOT_KNOWN"); }

QString digitText(const std::optional<int> &digit) { return digit ? QString::number(*digit) : unknownText(); }

QString numberText(const std::optional<double> &value, int decimals)
{
    return value ? QLocale().toString(*value, 'f', decimals) : unknownText();
}

QStringList cellsOf(const RunRecord &record, const HeardDigit &digit)
{
    const auto latency = digit.latencyMs >= 0 ? std::optional(digit.latencyMs) : std::nullopt;
    return {nameOf(digit),
            digitText(playedDigit(record, digit)),
            digitText(digit.heard),
            digitText(digit.typed),
            numberText(digit.score, 2),
            numberText(digit.levelDbfs, 1),
            numberText(digit.measured ? digit.measured->snrDb : std::nullopt, 1),
            numberText(latency, 0)};
}

QList<double> pairsOf(const QList<double> &lowest, const QList<double> &highest)
{
    QList<double> pairs;
    for (qsizetype index = 0; index < std::min(lowest.size(), highest.size()); ++index)
        pairs.append({lowest[index], highest[index]});
    return pairs;
}

// Each at a scale of its own: at one for all a quiet digit would be a line.
double reachOf(const QList<double> &wave)
{
    double reach = 0.01;
    for (const double sample : wave)
        reach = std::max(reach, std::abs(sample));
    return reach;
}

QString lengthWords(const QList<double> &wave, double stepMs)
{
    const double reach = reachOf(wave);
    const double seconds = static_cast<double>(wave.size() / 2) * stepMs / 1000;
    return hostText("PLOT_WAVE_WORDS")
        .arg(QLocale().toString(seconds, 'f', 1),
             QLocale().toString(std::max(lowestShownDbfs, 20 * std::log10(reach)), 'f', 0));
}

} // namespace

MeasurementsPage::MeasurementsPage(QWidget *parent)
    : QWidget(parent), nothing_(new QLabel(this)), table_(new QTableWidget(0, columnCount, this)), wave_(new WaveView(this)),
      spectrum_(new SpectrumView(this)), wavePlot_(addPlot(wave_, QStringLiteral("host_digit_wave"))),
      spectrumPlot_(addPlot(spectrum_, QStringLiteral("host_digit_spectrum")))
{
    setObjectName(QStringLiteral("host_measurements"));
    nothing_->setObjectName(QStringLiteral("host_nothing_measured"));
    nothing_->setWordWrap(true);
    table_->setObjectName(QStringLiteral("host_digits"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto *row = new QHBoxLayout(this);
    row->addWidget(nothing_, 1);
    row->addWidget(table_, 4);
    row->addWidget(wavePlot_.column, 2);
    row->addWidget(spectrumPlot_.column, 2);
    connect(table_, &QTableWidget::currentCellChanged, this, &MeasurementsPage::showChosen);
    retranslate();
}

MeasurementsPage::Plot MeasurementsPage::addPlot(PlotView *view, const QString &name)
{
    auto *column = new QWidget(this);
    auto *words = new QLabel(column);
    view->setObjectName(name);
    view->setWalkable();
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    words->setObjectName(name + QStringLiteral("_words"));
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view, 1);
    layout->addWidget(words);
    connect(view, &PlotView::walked, words, [view, words](const QString &told) {
        words->setText(told);
        view->setAccessibleDescription(told); // which announces itself
    });
    return {column, view, words};
}

void MeasurementsPage::showRun(const RunRecord &record)
{
    record_ = record;
    retranslate();
    if (hasDigits())
        table_->setCurrentCell(0, 0);
}

void MeasurementsPage::clear()
{
    record_.reset();
    retranslate();
}

bool MeasurementsPage::hasDigits() const { return record_ && !record_->digits.isEmpty(); }

void MeasurementsPage::fillTable()
{
    const QSignalBlocker blocker(table_);
    const int chosen = table_->currentRow();
    table_->setRowCount(hasDigits() ? static_cast<int>(record_->digits.size()) : 0);
    for (int row = 0; row < table_->rowCount(); ++row) {
        const QStringList cells = cellsOf(*record_, record_->digits[row]);
        for (int column = 0; column < columnCount; ++column)
            table_->setItem(row, column, new QTableWidgetItem(cells[column]));
    }
    if (chosen >= 0 && chosen < table_->rowCount())
        table_->setCurrentCell(chosen, 0);
}

void MeasurementsPage::showChosen()
{
    const int row = table_->currentRow();
    const bool isDigit = hasDigits() && row >= 0 && row < record_->digits.size();
    const bool isRecording = !hasDigits() && record_ && record_->recording;
    nothing_->setVisible(!hasDigits() && !isRecording);
    table_->setVisible(hasDigits());
    wavePlot_.column->setVisible(isDigit || isRecording);
    spectrumPlot_.column->setVisible(isDigit);
    if (isDigit)
        showDigit(record_->digits[row]);
    else if (isRecording)
        showRecording(*record_->recording);
}

void MeasurementsPage::showDigit(const HeardDigit &digit)
{
    const DigitMeasurement measured = digit.measured.value_or(DigitMeasurement());
    const QList<double> wave = pairsOf(measured.lowest, measured.highest);
    wave_->setWave(wave, envelopeStepMs, reachOf(wave));
    spectrum_->setBands(measured.bandLevelsDbfs, lowestBandHz);
    describe(wavePlot_, hostText("PLOT_WAVE").arg(nameOf(digit)),
             wave.isEmpty() ? QString() : lengthWords(wave, envelopeStepMs), {});
    describe(spectrumPlot_, hostText("PLOT_SPECTRUM").arg(nameOf(digit)), spectrum_->loudestWords(), spectrum_->allWords());
}

void MeasurementsPage::showRecording(const HeardRecording &recording)
{
    const QList<double> wave = pairsOf(recording.lowest, recording.highest);
    wave_->setWave(wave, recordingStepMs, reachOf(wave));
    describe(wavePlot_, hostText("METER_WAVE"), wave.isEmpty() ? QString() : lengthWords(wave, recordingStepMs), {});
}

void MeasurementsPage::describe(const Plot &plot, const QString &title, const QString &words, const QString &details)
{
    const QString shown = words.isEmpty() ? unknownText() : words;
    plot.words->setText(QStringLiteral("%1: %2").arg(title, shown));
    plot.view->setAccessibleName(title);
    const QString more = details.isEmpty() ? shown : QStringLiteral("%1. %2").arg(shown, details);
    plot.view->setAccessibleDescription(QStringLiteral("%1. %2").arg(more, hostText("PLOT_KEYS")));
    plot.view->setToolTip(hostText("PLOT_KEYS"));
}

void MeasurementsPage::retranslate()
{
    table_->setHorizontalHeaderLabels({hostText("DIGIT"), hostText("DIGIT_PLAYED"), hostText("DIGIT_HEARD"),
                                       hostText("DIGIT_TYPED"), hostText("DIGIT_SCORE"), hostText("DIGIT_LEVEL"),
                                       hostText("DIGIT_SNR"), hostText("DIGIT_LATENCY")});
    table_->setAccessibleName(hostText("MEASUREMENTS"));
    nothing_->setText(hostText("NOTHING_MEASURED"));
    for (const Plot &plot : {wavePlot_, spectrumPlot_})
        plot.view->setAccessibleName(hostText("MEASUREMENTS"));
    fillTable();
    showChosen();
}

} // namespace host
