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
        const QString translated = view.translatedMessage(message);
        text +=
            QStringLiteral("%1: %2 (%3)\n")
                .arg(isError ? QStringLiteral("error") : QStringLiteral("note"),
                     view.messageText(message) + (translated.isEmpty() ? QString() : QStringLiteral(" \u2013 ") + translated),
                     plainText(message[QLatin1String("text")].toString()));
    }
    if (!text.isEmpty() && view.flag("unattended"))
        text += QStringLiteral("\"The user\" is the operator program: no person answered.\n");
    return text;
}

QString factsText(const QList<ReportFact> &facts)
{
    QString text;
    for (const ReportFact &fact : facts)
        text += QStringLiteral("  %1  %2\n").arg(fact.title.leftJustified(18), fact.value);
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
    const QString translated = view.translatedTestName();
    QString text = QStringLiteral("%1%2 (%3): %4\n")
                       .arg(view.testName(), translated.isEmpty() ? QString() : QStringLiteral(" \u2013 ") + translated,
                            view.testKey(), view.verdictName());
    text += factsText(view.facts());
    text += section(QStringLiteral("Messages"), messagesText(view));
    text += section(QStringLiteral("Digits"), digitTableText(report));
    text += section(QStringLiteral("Recording"), factsText(view.recordingFacts()));
    QString limits;
    for (const QString &limit : view.lines("limits"))
        limits += QStringLiteral("  - %1\n").arg(limit);
    text += section(QStringLiteral("What this run cannot tell"), limits);
    return text.toUtf8();
}

} // namespace host
