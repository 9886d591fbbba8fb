// SPDX-License-Identifier: Apache-2.0
#include "host/gui/history_table.h"

#include "host/core/language_setting.h"
#include "host/gui/key_text.h"
#include "host/gui/result_panel.h"

#include <QHeaderView>
#include <QLocale>

namespace host {

namespace {

constexpr int historyColumnCount = 6;

} // namespace

HistoryTable::HistoryTable(QWidget *parent) : QTableWidget(0, historyColumnCount, parent)
{
    setObjectName(QStringLiteral("host_history"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::NoFocus); // where nothing is listed one would not see that the keyboard is there
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
}

void HistoryTable::add(const RunRecord &record)
{
    records_.prepend(record);
    insertRow(0);
    fillRow(0, record);
    setFocusPolicy(Qt::StrongFocus);
}

void HistoryTable::fillRow(int row, const RunRecord &record)
{
    const QStringList cells{QLocale(language_).toString(record.startedUtc.toLocalTime().time(), QLocale::LongFormat),
                            shownText(record.testNameKey),
                            record.device.name,
                            record.microphone.isEmpty() ? QStringLiteral("\u2013") : record.microphone,
                            verdictText(record),
                            LanguageSetting::nativeName(record.language)};
    for (int column = 0; column < historyColumnCount; ++column)
        setItem(row, column, new QTableWidgetItem(cells[column]));
}

void HistoryTable::retranslate(const QString &language)
{
    language_ = language;
    setHorizontalHeaderLabels({hostText("TIME"), hostText("TEST"), hostText("DEVICE"), shownText(QStringLiteral("MICROPHONE")),
                               hostText("RESULT"), hostText("LANGUAGE")});
    setAccessibleName(hostText("HISTORY"));
    for (int row = 0; row < rowCount(); ++row)
        fillRow(row, records_[row]);
}

} // namespace host
