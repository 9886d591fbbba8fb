// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/report_elements.h"

#include "host/reports/run_report.h"

#include <QJsonDocument>
#include <QXmlStreamReader>

QList<Element> elementsOf(const QByteArray &bytes)
{
    QList<Element> elements;
    QList<qsizetype> open;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            open.append(elements.size());
            elements.append({reader.name().toString(), reader.attributes(), {}});
        } else if (reader.isEndElement()) {
            open.removeLast();
        } else if (reader.isCharacters() && !open.isEmpty()) {
            elements[open.last()].text += reader.text();
        }
    }
    if (reader.hasError())
        qWarning("%s at line %lld", qPrintable(reader.errorString()), reader.lineNumber());
    return reader.hasError() ? QList<Element>() : elements;
}

QList<Element> named(const QList<Element> &elements, const char *name)
{
    QList<Element> found = elements;
    found.removeIf([name](const Element &element) { return element.name != QLatin1String(name); });
    return found;
}

QJsonObject reportOf(const host::RunRecord &record)
{
    const auto lookUp = [](const QString &key) { return QStringLiteral("\u300C%1\u300D").arg(key); };
    return QJsonDocument::fromJson(host::runReport(record, lookUp)).object();
}

QByteArray html(const host::RunRecord &record) { return host::convertReport(reportOf(record), host::ReportFormat::html); }

QByteArray junit(const host::RunRecord &record) { return host::convertReport(reportOf(record), host::ReportFormat::junit); }
