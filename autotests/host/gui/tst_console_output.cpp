// SPDX-License-Identifier: Apache-2.0
#include "host/gui/console_output.h"

#include "host/reports/run_report.h"
#include "host/reports/text_report.h"
#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTest>

class TestConsoleOutput : public QObject {
    Q_OBJECT

private slots:
    void tellsMessagesInWordsAndByKey_data();
    void tellsMessagesInWordsAndByKey();
    void tellsAMessageWithoutWordsOnce();
    void endsWithTheDigits();
    void aNameCannotSteerTheTerminal();
    void endsWithWhatAPassMustNotHide();
};

void TestConsoleOutput::endsWithWhatAPassMustNotHide()
{
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    host::RunRecord record;
    record.device.name = QStringLiteral("Speakers");
    record.code = record.moduleCode = 0;
    QVERIFY(!host::runSummary(record).contains(QStringLiteral("warning")));
    record.deviceVolume = {host::EndpointState{37, true}, host::EndpointState{37, true}};
    QVERIFY2(host::runSummary(record).endsWith(
                 QStringLiteral("\nwarning: \u201CSpeakers\u201D was muted before the run, and is muted again now. "
                                "(WARNING_IS_MUTED_AGAIN)\n")),
             qPrintable(host::runSummary(record)));
}

void TestConsoleOutput::aNameCannotSteerTheTerminal()
{
    const QString name = QStringLiteral("A\u001b[2J\r\nB\u202eC\u2028D\u200dE\u007f");
    const QString shown = QStringLiteral("A\\u{001b}[2J\\u{000d}\\u{000a}B\\u{202e}C\\u{2028}D\u200dE\\u{007f}");
    host::RunRecord record;
    record.device.name = name;
    record.recording.emplace();
    record.recording->spokenThrough = name;
    record.recording->microphone = name;
    const QString summary = host::runSummary(record);
    QCOMPARE(summary.count(shown), 3);
    QVERIFY(!summary.contains(u'\u001b') && !summary.contains(u'\r'));
    host::Device device;
    device.name = name;
    const QString complaint = host::unknownDevice(name, {device});
    QCOMPARE(complaint.count(shown), 2);
    QVERIFY(!complaint.contains(u'\n'));
}

void TestConsoleOutput::tellsMessagesInWordsAndByKey_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en_US") << QStringLiteral("en_US");
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP");
}

void TestConsoleOutput::tellsMessagesInWordsAndByKey()
{
    QFETCH(const QString, language);
    QVERIFY(host::installTranslators(language));
    const auto inWords = [](const char *key) { return QCoreApplication::translate("AUDIO", key); };
    host::RunRecord record;
    record.messages = {{QStringLiteral("USER_DID_NOT_REPORT_SOUND"), 2},
                       {QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS"), 0}};
    const QString summary = host::runSummary(record);
    const QString error = QStringLiteral("\nerror: %1 (USER_DID_NOT_REPORT_SOUND)\n").arg(inWords("USER_DID_NOT_REPORT_SOUND"));
    const QString note = QStringLiteral("\nnote: %1: %2 (POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS)\n")
                             .arg(inWords("POSSIBLE_DEFECTIVE_COMPONENTS"), inWords("SPEAKERS"));
    QVERIFY2(summary.contains(error) && !error.contains(QStringLiteral(": USER_DID")), qPrintable(summary));
    QVERIFY2(summary.contains(note) && !note.contains(QStringLiteral("note: POSSIBLE")), qPrintable(summary));
}

void TestConsoleOutput::tellsAMessageWithoutWordsOnce()
{
    host::RunRecord record;
    record.messages = {{QStringLiteral("no key at all"), 0}};
    const QString summary = host::runSummary(record);
    QVERIFY2(summary.contains(QStringLiteral("\nnote: no key at all\n")), qPrintable(summary));
}

void TestConsoleOutput::endsWithTheDigits()
{
    host::RunRecord record;
    record.digits = {host::HeardDigit()};
    const QJsonObject report = QJsonDocument::fromJson(host::runReport(record)).object();
    QVERIFY(!host::digitTableText(report).isEmpty());
    QVERIFY(host::runSummary(record).endsWith(u'\n' + host::digitTableText(report)));
}

QTEST_GUILESS_MAIN(TestConsoleOutput)
#include "tst_console_output.moc"
