// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/report_elements.h"
#include "autotests/host/reports/sample_record.h"
#include "host/reports/report_formats.h"
#include "host/reports/run_report.h"
#include "host/translations/key_sentences.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QObject>
#include <QTest>

using host::ReportFormat;

Q_DECLARE_METATYPE(host::ReportFormat)

namespace {

void addFormats()
{
    QTest::addColumn<ReportFormat>("format");
    QTest::newRow("json") << ReportFormat::json;
    QTest::newRow("junit") << ReportFormat::junit;
    QTest::newRow("html") << ReportFormat::html;
    QTest::newRow("text") << ReportFormat::text;
}

} // namespace

class TestReportFacts : public QObject {
    Q_OBJECT

private slots:
    void refusesWhatContradicts_data();
    void refusesWhatContradicts();
    void takesWhatALaterProgramAdds();
    void tellsTheVolumesInEachFormat_data();
    void tellsTheVolumesInEachFormat();
    void tellsTheMachineInEachFormat_data();
    void tellsTheMachineInEachFormat();
    void saysAReasonOnce();
    void tellsWhoAnswered();
    void labelsWhatTheDeviceTells();
};

void TestReportFacts::refusesWhatContradicts_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("fault");
    const auto add = [](const char *path, const char *value, const char *fault) {
        QTest::addRow("%s = %s", path, value)
            << QString::fromLatin1(path).split(u'/') << QByteArray(value) << QString::fromLatin1(fault);
    };
    add("verdict/code", "\"zero\"", "verdict/code is none of those that the format knows");
    add("verdict/code", "1.5", "verdict/code is none of those that the format knows");
    add("verdict/code", "2", "verdict/code is none of those that the format knows");
    add("verdict/code", "4", "verdict/name is not 'not completed', which verdict/code 4 stands for");
    add("verdict/name", "\"passed\"", "verdict/name is not 'failed', which verdict/code 1 stands for");
    add("verdict/name", "null", "verdict/name is none of those that the format knows");
    add("verdict", "{}", "verdict/code is missing");
    add("verdict", "[]", "verdict is no object");
    add("moduleCode", "0", "verdict/code is 1, which moduleCode does not say");
    add("moduleCode", "null", "verdict/code is 1, which moduleCode does not say");
    add("stopped", "true", "verdict/code is 1, of a run that was stopped");
    add("stopped", "\"no\"", "stopped is no boolean");
    add("device", "null", "device is no object");
    add("device/name", "7", "device/name is no string");
    add("digits", "\"abc\"", "digits is no array");
    add("digits", "[{},7]", "digits/2 is no object");
    add("digits", "[{\"heard\":99}]", "digits/1/heard is too large");
    add("digits", "[{\"typed\":-1}]", "digits/1/typed is too small");
    add("digits", "[{\"heard\":2.5}]", "digits/1/heard is no integer or null");
    add("startedUtc", "\"garbage\"", "startedUtc has not the form that it must have");
    add("startedUtc", "\"2026-03-01T10:00:00.250+01:00\"", "startedUtc has not the form that it must have");
    add("endedUtc", "\"2026-02-30T10:00:00.250Z\"", "endedUtc is no moment");
    add("recording", "{\"answer\":\"perhaps\"}", "recording/answer is none of those that the format knows");
    add("deviceVolume", "{\"percentBefore\":101}", "deviceVolume/percentBefore is too large");
    add("test", "{\"letter\":\"p\"}", "test/nameKey is missing");
}

void TestReportFacts::refusesWhatContradicts()
{
    QFETCH(const QStringList, path);
    QFETCH(const QByteArray, value);
    QFETCH(const QString, fault);
    const QJsonValue wrong = QJsonDocument::fromJson('[' + value + ']').array().at(0);
    QJsonObject report = reportOf(fullRecord());
    QVERIFY(std::holds_alternative<QJsonObject>(host::readReport(QJsonDocument(report).toJson())));
    QJsonObject inner = report.value(path.first()).toObject();
    inner.insert(path.last(), wrong);
    report.insert(path.first(), path.size() == 1 ? wrong : QJsonValue(inner));
    const auto read = host::readReport(QJsonDocument(report).toJson());
    QVERIFY(std::holds_alternative<host::ReportError>(read));
    QCOMPARE(std::get<host::ReportError>(read).message, QStringLiteral("it is no valid report: ") + fault);
    host::RunRecord passed = fullRecord();
    passed.code = passed.moduleCode = 0;
    passed.messages.clear();
    QJsonObject denied = reportOf(passed);
    QVERIFY(std::holds_alternative<QJsonObject>(host::readReport(QJsonDocument(denied).toJson())));
    denied.insert(QStringLiteral("messages"), reportOf(fullRecord()).value(QLatin1String("messages")));
    QVERIFY(std::holds_alternative<host::ReportError>(host::readReport(QJsonDocument(denied).toJson())));
}

void TestReportFacts::takesWhatALaterProgramAdds()
{
    QJsonObject report = reportOf(fullRecord());
    report.insert(QStringLiteral("weather"), QStringLiteral("fair"));
    for (const char *late : {"machine", "warnings", "deviceVolume", "microphoneVolume", "answeredBy", "channelMapping"})
        report.remove(QLatin1String(late));
    QVERIFY(std::holds_alternative<QJsonObject>(host::readReport(QJsonDocument(report).toJson())));
}

void TestReportFacts::tellsTheVolumesInEachFormat_data() { addFormats(); }

void TestReportFacts::tellsTheVolumesInEachFormat()
{
    QFETCH(const ReportFormat, format);
    host::RunRecord record = microphoneRecord();
    record.language = QStringLiteral("de_DE");
    record.microphone = QStringLiteral("Desk");
    record.deviceVolume = {host::EndpointState{37, true}, host::EndpointState{37, true}};
    record.microphoneVolume = {host::EndpointState{0, false}, std::nullopt};
    const QString text = QString::fromUtf8(host::convertReport(reportOf(record), format));
    QStringList parts{QStringLiteral("was muted before the run, and is muted again now"),
                      QStringLiteral("WARNING_IS_MUTED_AGAIN"), QStringLiteral("Desk\u201D was 0 before the run."),
                      QStringLiteral("WARNING_WAS_AT_ZERO")};
    if (format == ReportFormat::json)
        parts += {QStringLiteral("\"percentBefore\": 37"), QStringLiteral("\"mutedBefore\": true"),
                  QStringLiteral("\"percentAfter\": null")};
    else
        parts += {QStringLiteral("37 %, muted"), QStringLiteral("0 %, not muted")};
    for (const QString &part : parts)
        QVERIFY2(text.contains(part), qPrintable(part + u'\n' + text));
    QVERIFY2(!text.contains(QStringLiteral("%1")), qPrintable(text));
    record.deviceVolume = record.microphoneVolume = {host::EndpointState{37, false}, host::EndpointState{37, false}};
    QVERIFY(!host::convertReport(reportOf(record), format).contains("WARNING_"));
}

void TestReportFacts::tellsTheMachineInEachFormat_data() { addFormats(); }

void TestReportFacts::tellsTheMachineInEachFormat()
{
    QFETCH(const ReportFormat, format);
    host::RunRecord record = fullRecord();
    record.machine = {QStringLiteral("desk-7"), QStringLiteral("Any OS 12"),   QStringLiteral("kern 6.1"),
                      QStringLiteral("cpu"),    QStringLiteral("server 16.1"), QStringLiteral("9.8"),
                      QStringLiteral("7.6")};
    const QByteArray text = host::convertReport(reportOf(record), format);
    for (const char *part : {"desk-7", "Any OS 12", "kern 6.1", "cpu", "server 16.1", "9.8", "7.6"})
        QVERIFY2(text.contains(part), part);
    QCOMPARE(named(elementsOf(junit(record)), "testsuite").value(0).attribute("hostname"), QStringLiteral("desk-7"));
    QVERIFY(!junit(fullRecord()).contains("hostname"));
}

void TestReportFacts::saysAReasonOnce()
{
    host::RunRecord record = fullRecord();
    record.language = QStringLiteral("en_US");
    record.wasStopped = true;
    record.code = 4;
    record.reason = QStringLiteral("the run was stopped");
    const auto english = [](const QString &key) { return host::keySentences(key, host::englishText).join(u' '); };
    const QJsonObject report = QJsonDocument::fromJson(host::runReport(record, english)).object();
    for (const ReportFormat format : {ReportFormat::junit, ReportFormat::html, ReportFormat::text}) {
        const QString text = QString::fromUtf8(host::convertReport(report, format));
        QVERIFY2(text.contains(QStringLiteral("The run was stopped. (REASON_STOPPED)")), qPrintable(text));
        QVERIFY2(!text.contains(QStringLiteral("the run was stopped")), qPrintable(text));
    }
}

void TestReportFacts::tellsWhoAnswered()
{
    host::RunRecord record = fullRecord();
    const QString told = QStringLiteral("is the operator program: no person answered.");
    for (const ReportFormat format : {ReportFormat::html, ReportFormat::text})
        QVERIFY(QString::fromUtf8(host::convertReport(reportOf(record), format)).contains(told));
    QCOMPARE(reportOf(record).value(QLatin1String("answeredBy")).toString(), QStringLiteral("operator program"));
    record.isUnattended = false;
    QVERIFY(!html(record).contains(told.toUtf8()));
    QCOMPARE(reportOf(record).value(QLatin1String("answeredBy")).toString(), QStringLiteral("person"));
    record.wasModuleCalled = false;
    QVERIFY(reportOf(record).value(QLatin1String("answeredBy")).isNull());
}

void TestReportFacts::labelsWhatTheDeviceTells()
{
    host::RunRecord record = fullRecord();
    record.device.properties = {{QStringLiteral("NUMBER_OF_CHANNELS"), QStringLiteral("2")},
                                {QStringLiteral("Colour"), QStringLiteral("red")}};
    QStringList headings;
    for (const Element &heading : named(elementsOf(html(record)), "th"))
        headings.append(heading.text);
    QVERIFY2(headings.contains(QStringLiteral("Number of channels (NUMBER_OF_CHANNELS)")), qPrintable(headings.join(u'\n')));
    QVERIFY(headings.contains(QStringLiteral("Colour")));
}

QTEST_GUILESS_MAIN(TestReportFacts)
#include "tst_report_facts.moc"
