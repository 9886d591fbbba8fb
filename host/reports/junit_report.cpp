// SPDX-License-Identifier: Apache-2.0
#include "host/reports/junit_report.h"

#include "host/reports/report_view.h"
#include "host/reports/text_report.h"

#include "contract/result_codes.h"

#include <QXmlStreamWriter>

namespace host {

namespace {

using namespace ostra::result;

const QString messageName = QStringLiteral("message");

// The element that tells of it; empty for a success.
QString elementOf(int code)
{
    switch (static_cast<std::uint32_t>(code)) {
    case passed:
        return {};
    case failed:
        return QStringLiteral("failure");
    case cannotBePerformed:
        return QStringLiteral("skipped");
    default:
        return QStringLiteral("error");
    }
}

QString secondsOf(const ReportView &view) { return QString::number(view.seconds(), 'f', 3); }

// Without the milliseconds and the zone's letter, which its schema does not know; the time is UTC.
QString timestampOf(const ReportView &view) { return view.text("startedUtc").left(19); }

QString whyOf(const ReportView &view)
{
    const QString reason = view.reason();
    return reason.isEmpty() ? view.verdictName() : reason;
}

void writeSuiteAttributes(QXmlStreamWriter &xml, const ReportView &view)
{
    const QString element = elementOf(view.code());
    const auto count = [&element](const char *name) {
        return element == QLatin1String(name) ? QStringLiteral("1") : QStringLiteral("0");
    };
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("module_audio"));
    xml.writeAttribute(QStringLiteral("tests"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("failures"), count("failure"));
    xml.writeAttribute(QStringLiteral("errors"), count("error"));
    xml.writeAttribute(QStringLiteral("skipped"), count("skipped"));
    xml.writeAttribute(QStringLiteral("time"), secondsOf(view));
    xml.writeAttribute(QStringLiteral("timestamp"), timestampOf(view));
    if (const QString machine = view.hostName(); !machine.isEmpty())
        xml.writeAttribute(QStringLiteral("hostname"), machine);
}

void writeProperties(QXmlStreamWriter &xml, const ReportView &view)
{
    xml.writeStartElement(QStringLiteral("properties"));
    for (const ReportFact &fact : view.facts() + view.recordingFacts()) {
        xml.writeEmptyElement(QStringLiteral("property"));
        xml.writeAttribute(QStringLiteral("name"), fact.title);
        xml.writeAttribute(QStringLiteral("value"), fact.value);
    }
    xml.writeEndElement();
}

void writeCase(QXmlStreamWriter &xml, const ReportView &view, const QString &output)
{
    xml.writeStartElement(QStringLiteral("testcase"));
    xml.writeAttribute(QStringLiteral("classname"), QStringLiteral("module_audio.") + view.testKey());
    xml.writeAttribute(QStringLiteral("name"), view.testName() + QStringLiteral(" / ") + view.deviceName());
    xml.writeAttribute(QStringLiteral("time"), secondsOf(view));
    if (const QString element = elementOf(view.code()); !element.isEmpty()) {
        xml.writeStartElement(element);
        xml.writeAttribute(messageName, whyOf(view));
        if (element != QLatin1String("skipped"))
            xml.writeAttribute(QStringLiteral("type"), QStringLiteral("code %1").arg(view.code()));
        xml.writeEndElement();
    }
    xml.writeTextElement(QStringLiteral("system-out"), output);
    xml.writeEndElement();
}

} // namespace

QByteArray junitReport(const QJsonObject &report)
{
    const ReportView view(report);
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    xml.writeStartElement(QStringLiteral("testsuite"));
    writeSuiteAttributes(xml, view);
    writeProperties(xml, view);
    writeCase(xml, view, QString::fromUtf8(textReport(report)));
    xml.writeEndDocument();
    return bytes;
}

} // namespace host
