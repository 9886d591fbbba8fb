// SPDX-License-Identifier: Apache-2.0
#include "host/reports/text_report.h"

#include "host/reports/report_view.h"

#include <algorithm>

namespace host {

namespace {

QString lineOf(const QStringList &cells, const QList<qsizetype> &widths)
{
    QStringList padded;
    for (qsizetype column = 0; column < cells.size(); ++column)
        padded.append(cells.at(column).rightJustified(widths.at(column)));
    return padded.join(QStringLiteral("  ")) + u'\n';
}

QList<qsizetype> widthsOf(const QList<QStringList> &rows)
{
    QList<qsizetype> widths(rows.first().size(), 0);
    for (const QStringList &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row.at(column).size());
    }
    return widths;
}

QString messagesText(const ReportView &view)
{
    QString text;
    const QJsonArray messages = view.list("messages");
    for (const QJsonValue message : messages) {
        const bool isError = message[QLatin1String("level")].toInt() > 0;
        text += QStringLiteral("%1: %2 (%3)\n")
                    .arg(isError ? QStringLiteral("error") : QStringLiteral("note"),
                         plainText(message[QLatin1String("translated")].toString()),
                         plainText(message[QLatin1String("text")].toString()));
    }
    return text;
}

QString pairsText(const QList<std::pair<QString, QString>> &pairs)
{
    QString text;
    for (const auto &[title, value] : pairs)
        text += QStringLiteral("  %1  %2\n").arg(title.leftJustified(18), value);
    return text;
}

QString section(const QString &title, const QString &body) { return body.isEmpty() ? QString() : u'\n' + title + u'\n' + body; }

} // namespace

QString digitTableText(const QJsonObject &report)
{
    const QList<QStringList> rows = ReportView(report).digitRows();
    if (rows.isEmpty())
        return {};
    const QList<qsizetype> widths = widthsOf(rows);
    QString table;
    for (const QStringList &row : rows)
        table += lineOf(row, widths);
    return table;
}

QByteArray textReport(const QJsonObject &report)
{
    const ReportView view(report);
    QString text = QStringLiteral("%1 (%2): %3\n").arg(view.testName(), view.testKey(), view.verdictName());
    text += pairsText(view.facts());
    text += section(QStringLiteral("Messages"), messagesText(view));
    text += section(QStringLiteral("Digits"), digitTableText(report));
    text += section(QStringLiteral("Recording"), pairsText(view.recordingFacts()));
    QString limits;
    for (const QString &limit : view.lines("limits"))
        limits += QStringLiteral("  - %1\n").arg(limit);
    text += section(QStringLiteral("What this run cannot tell"), limits);
    return text.toUtf8();
}

} // namespace host
