// SPDX-License-Identifier: Apache-2.0
#include "host/reports/digit_table.h"
#include "host/reports/run_limits.h"
#include "host/reports/run_report.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using host::HeardDigit;
using host::RunRecord;

namespace {

RunRecord playbackRecord()
{
    RunRecord record;
    record.testLetter = QStringLiteral("p");
    record.testNameKey = QStringLiteral("AUDIO_PLAYBACK_TEST");
    record.device = {QStringLiteral("Kopfh\u00F6rer \"1\""),
                     QStringLiteral("id 7"),
                     {{QStringLiteral("UDI"), QStringLiteral("u")}, {QStringLiteral("SAMPLE_RATE"), QStringLiteral("48000")}}};
    record.language = QStringLiteral("ja_JP");
    record.startedUtc = QDateTime(QDate(2026, 3, 1), QTime(10, 0, 0, 250), QTimeZone(3600));
    record.endedUtc = record.startedUtc.addMSecs(9500);
    record.moduleCode = 1;
    record.code = 1;
    record.progress = {{0, {}}, {100, QStringLiteral("USER_DID_NOT_REPORT_SOUND")}};
    record.messages = {{QStringLiteral("USER_DID_NOT_REPORT_SOUND"), 2}};
    record.isUnattended = true;
    record.listenedTo = QStringLiteral("Monitor of Speakers");
    record.screenshots = {QStringLiteral("01-prompt.png")};
    record.restoredVolumes = {QStringLiteral("Speakers")};
    return record;
}

HeardDigit heardDigit()
{
    HeardDigit digit;
    digit.sequence = 2;
    digit.position = 3;
    digit.playedAtMs = 4321;
    digit.heard = 7;
    digit.typed = 0;
    digit.score = 0.987654;
    digit.margin = 0.5;
    digit.latencyMs = 61;
    digit.levelDbfs = -21.04;
    digit.clipped = true;
    return digit;
}

HeardDigit missedDigit()
{
    HeardDigit digit;
    digit.playedAtMs = -1;
    digit.latencyMs = -1;
    digit.levelDbfs = -120;
    return digit;
}

QJsonObject parsed(const RunRecord &record) { return QJsonDocument::fromJson(host::runReport(record)).object(); }

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestRunReport : public QObject {
    Q_OBJECT

private slots:
    void tellsTheRun();
    void tellsEveryDigit();
    void tellsTheRecording();
    void tellsWhatIsNotKnownAsNull();
    void namesEachVerdict_data();
    void namesEachVerdict();
    void isNeverAPassThatTheExitCodeDenies();
    void putsTheLimitsLast();
    void choosesTheLimits_data();
    void choosesTheLimits();
    void tellsWhatSilenceCanMean_data();
    void tellsWhatSilenceCanMean();
    void tellsThatTheClipsAreTheirOwnMeasure();
    void writesTheWholeFile();
    void keepsTheOldFileWhenItCannotWrite();
    void namesTheFileThatItCannotWrite();
    void drawsATable();
    void drawsNoTableWithoutDigits();
};

void TestRunReport::tellsTheRun()
{
    const QJsonObject report = parsed(playbackRecord());
    QCOMPARE(report.value(QLatin1String("formatVersion")).toInt(), 1);
    QCOMPARE(report.value(QLatin1String("startedUtc")).toString(), QStringLiteral("2026-03-01T09:00:00.250Z"));
    QCOMPARE(report.value(QLatin1String("endedUtc")).toString(), QStringLiteral("2026-03-01T09:00:09.750Z"));
    const QJsonObject device = report.value(QLatin1String("device")).toObject();
    QCOMPARE(device.value(QLatin1String("name")).toString(), QStringLiteral("Kopfh\u00F6rer \"1\""));
    const QJsonObject property = device.value(QLatin1String("properties")).toArray().at(1).toObject();
    QCOMPARE(property.value(QLatin1String("key")).toString(), QStringLiteral("SAMPLE_RATE"));
    QCOMPARE(property.value(QLatin1String("value")).toString(), QStringLiteral("48000"));
    QCOMPARE(report.value(QLatin1String("test")).toObject().value(QLatin1String("nameKey")).toString(),
             QStringLiteral("AUDIO_PLAYBACK_TEST"));
    QCOMPARE(report.value(QLatin1String("language")).toString(), QStringLiteral("ja_JP"));
    QCOMPARE(report.value(QLatin1String("progress")).toArray().at(1).toObject().value(QLatin1String("percent")).toInt(), 100);
    const QJsonObject message = report.value(QLatin1String("messages")).toArray().at(0).toObject();
    QCOMPARE(message.value(QLatin1String("text")).toString(), QStringLiteral("USER_DID_NOT_REPORT_SOUND"));
    QCOMPARE(message.value(QLatin1String("level")).toInt(), 2);
    QCOMPARE(report.value(QLatin1String("restoredVolumes")).toArray(), QJsonArray{QStringLiteral("Speakers")});
    QCOMPARE(report.value(QLatin1String("screenshots")).toArray(), QJsonArray{QStringLiteral("01-prompt.png")});
    QCOMPARE(report.value(QLatin1String("listenedTo")).toString(), QStringLiteral("Monitor of Speakers"));
    QVERIFY(report.value(QLatin1String("unattended")).toBool());
}

void TestRunReport::tellsEveryDigit()
{
    RunRecord record = playbackRecord();
    record.digits = {missedDigit(), heardDigit()};
    const QJsonObject digit = parsed(record).value(QLatin1String("digits")).toArray().at(1).toObject();
    const QJsonObject expected{{QStringLiteral("sequence"), 2},      {QStringLiteral("position"), 3},
                               {QStringLiteral("playedAtMs"), 4321}, {QStringLiteral("heard"), 7},
                               {QStringLiteral("typed"), 0},         {QStringLiteral("score"), 0.9877},
                               {QStringLiteral("margin"), 0.5},      {QStringLiteral("latencyMs"), 61},
                               {QStringLiteral("levelDbfs"), -21.0}, {QStringLiteral("clipped"), true}};
    QCOMPARE(digit, expected);
}

void TestRunReport::tellsTheRecording()
{
    RunRecord record = playbackRecord();
    QVERIFY(parsed(record).value(QLatin1String("recording")).isNull());
    host::HeardRecording heard;
    heard.microphone = QStringLiteral("Mic");
    heard.spokenThrough = QStringLiteral("Speakers");
    heard.heardAtMs = 9876;
    heard.score = 0.987654;
    heard.isFound = true;
    heard.latencyMs = -12.4;
    heard.levelDbfs = -20.54;
    heard.peakDbfs = -3.16;
    heard.isSilent = false;
    heard.isMonoInStereo = true;
    heard.answer = true;
    record.recording = heard;
    const QJsonObject expected{{QStringLiteral("microphone"), QStringLiteral("Mic")},
                               {QStringLiteral("spokenThrough"), QStringLiteral("Speakers")},
                               {QStringLiteral("heardAtMs"), 9876},
                               {QStringLiteral("score"), 0.9877},
                               {QStringLiteral("found"), true},
                               {QStringLiteral("latencyMs"), -12},
                               {QStringLiteral("levelDbfs"), -20.5},
                               {QStringLiteral("peakDbfs"), -3.2},
                               {QStringLiteral("clipped"), false},
                               {QStringLiteral("silent"), false},
                               {QStringLiteral("monoInStereo"), true},
                               {QStringLiteral("answer"), QStringLiteral("yes")}};
    QCOMPARE(parsed(record).value(QLatin1String("recording")).toObject(), expected);
    record.recording = host::HeardRecording();
    const QJsonObject unheard = parsed(record).value(QLatin1String("recording")).toObject();
    for (const char *key : {"heardAtMs", "latencyMs", "answer"})
        QVERIFY2(unheard.value(QLatin1String(key)).isNull(), key);
    QVERIFY(unheard.value(QLatin1String("silent")).toBool());
}

void TestRunReport::tellsWhatIsNotKnownAsNull()
{
    RunRecord record = playbackRecord();
    record.digits = {missedDigit()};
    record.endedUtc = QDateTime();
    const QJsonObject report = parsed(record);
    QVERIFY(report.value(QLatin1String("endedUtc")).isNull());
    const QJsonObject digit = report.value(QLatin1String("digits")).toArray().at(0).toObject();
    for (const char *key : {"playedAtMs", "heard", "typed", "latencyMs"})
        QVERIFY2(digit.value(QLatin1String(key)).isNull(), key);
}

void TestRunReport::namesEachVerdict_data()
{
    QTest::addColumn<unsigned>("code");
    QTest::addColumn<int>("told");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0U << 0 << QStringLiteral("passed");
    QTest::newRow("1") << 1U << 1 << QStringLiteral("failed");
    QTest::newRow("3") << 3U << 3 << QStringLiteral("cannot be performed");
    QTest::newRow("4") << 4U << 4 << QStringLiteral("not completed");
    QTest::newRow("6") << 6U << 6 << QStringLiteral("invalid call");
    QTest::newRow("5") << 5U << 4 << QStringLiteral("not completed"); // no module may return it
}

void TestRunReport::namesEachVerdict()
{
    QFETCH(const unsigned, code);
    QFETCH(const int, told);
    QFETCH(const QString, name);
    RunRecord record = playbackRecord();
    record.code = code;
    record.messages.clear();
    record.reason = QStringLiteral("listener lost");
    const QJsonObject report = parsed(record);
    const QJsonObject verdict = report.value(QLatin1String("verdict")).toObject();
    QCOMPARE(verdict.value(QLatin1String("code")).toInt(), told);
    QCOMPARE(verdict.value(QLatin1String("name")).toString(), name);
    QCOMPARE(report.value(QLatin1String("moduleCode")).toInt(), 1);
    QCOMPARE(report.value(QLatin1String("reason")).toString(), QStringLiteral("listener lost"));
}

void TestRunReport::isNeverAPassThatTheExitCodeDenies()
{
    RunRecord record = playbackRecord();
    record.code = 0;
    QVERIFY(!record.messages.isEmpty()); // one that explains a failure
    QCOMPARE(parsed(record).value(QLatin1String("verdict")).toObject().value(QLatin1String("code")).toInt(), 4);
    record.messages.clear();
    record.wasStopped = true;
    const QJsonObject stopped = parsed(record);
    QCOMPARE(stopped.value(QLatin1String("verdict")).toObject().value(QLatin1String("code")).toInt(), 4);
    QVERIFY(stopped.value(QLatin1String("stopped")).toBool());
    record.wasModuleCalled = false;
    QVERIFY(parsed(record).value(QLatin1String("moduleCode")).isNull());
}

void TestRunReport::putsTheLimitsLast()
{
    const QByteArray report = host::runReport(playbackRecord());
    const qsizetype limits = report.indexOf("\n    \"limits\": [");
    QVERIFY(limits > report.indexOf("\n    \"verdict\""));
    QVERIFY(report.endsWith("\n    ]\n}\n"));
    QCOMPARE(parsed(playbackRecord()).value(QLatin1String("limits")).toArray(),
             QJsonArray::fromStringList(host::runLimits(playbackRecord())));
}

void TestRunReport::choosesTheLimits_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("notTold");
    const QString server = QStringLiteral("digital path up to the sound server");
    const QString room = QStringLiteral("hears the room");
    const QString person = QStringLiteral("A person");
    QTest::newRow("monitor") << QStringLiteral("p") << QStringLiteral("Monitor of X") << server << room;
    QTest::newRow("monitor by its name") << QStringLiteral("p") << QStringLiteral("sink1.monitor") << server << room;
    QTest::newRow("microphone") << QStringLiteral("p") << QStringLiteral("Webcam") << room << server;
    QTest::newRow("attended") << QStringLiteral("p") << QString() << person << room;
    QTest::newRow("microphone test at a monitor")
        << QStringLiteral("m") << QStringLiteral("Monitor of X") << server << QStringLiteral("from another");
    QTest::newRow("microphone test in a room")
        << QStringLiteral("m") << QStringLiteral("Webcam") << QStringLiteral("from another") << server;
    QTest::newRow("microphone test of a person") << QStringLiteral("m") << QString() << person << QStringLiteral("sentence");
    QTest::newRow("microphone test") << QStringLiteral("m") << QString() << QStringLiteral("One microphone") << server;
}

void TestRunReport::choosesTheLimits()
{
    QFETCH(const QString, letter);
    QFETCH(const QString, source);
    QFETCH(const QString, told);
    QFETCH(const QString, notTold);
    RunRecord record = playbackRecord();
    record.testLetter = letter;
    record.listenedTo = source;
    record.isUnattended = !source.isEmpty();
    const QString limits = host::runLimits(record).join(u'\n');
    QVERIFY2(limits.contains(told), qPrintable(limits));
    QVERIFY2(!limits.contains(notTold), qPrintable(limits));
    QCOMPARE(limits.contains(QStringLiteral("full volume only")), letter == QLatin1String("p"));
}

void TestRunReport::tellsWhatSilenceCanMean_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isHeard");
    QTest::newRow("silent monitor") << QStringLiteral("Monitor of X") << false;
    QTest::newRow("silent microphone") << QStringLiteral("Webcam") << false;
    QTest::newRow("heard") << QStringLiteral("Monitor of X") << true;
}

void TestRunReport::tellsWhatSilenceCanMean()
{
    QFETCH(const QString, source);
    QFETCH(const bool, isHeard);
    RunRecord record = playbackRecord();
    record.listenedTo = source;
    record.digits = {missedDigit(), isHeard ? heardDigit() : missedDigit()};
    const QString limits = host::runLimits(record).join(u'\n');
    QCOMPARE(limits.contains(QStringLiteral("a source that is muted or hears another device")), !isHeard);
    QCOMPARE(limits.contains(QStringLiteral("does not tell its true volumes")), !isHeard);
}

void TestRunReport::tellsThatTheClipsAreTheirOwnMeasure()
{
    const QString sentence = QStringLiteral("the very clips that were played");
    QVERIFY(host::runLimits(playbackRecord()).join(u'\n').contains(sentence));
    RunRecord attended = playbackRecord();
    attended.isUnattended = false;
    QVERIFY(!host::runLimits(attended).join(u'\n').contains(sentence));
}

void TestRunReport::writesTheWholeFile()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("Bericht \u8033.json"));
    QString error;
    QVERIFY2(host::writeRunReport(playbackRecord(), file, &error), qPrintable(error));
    QCOMPARE(contentOf(file), host::runReport(playbackRecord()));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    QVERIFY(host::writeRunReport(playbackRecord(), file, nullptr));
}

// A folder stands where the file shall go: the new report cannot take its place.
void TestRunReport::keepsTheOldFileWhenItCannotWrite()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report"));
    QVERIFY(QDir().mkpath(file + QStringLiteral("/kept")));
    QString error;
    QVERIFY(!host::writeRunReport(playbackRecord(), file, &error));
    QVERIFY(QDir(file).exists(QStringLiteral("kept")));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void TestRunReport::namesTheFileThatItCannotWrite()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("no/such/folder/report.json"));
    QString error;
    QVERIFY(!host::writeRunReport(playbackRecord(), file, &error));
    QVERIFY2(error.contains(QLatin1Char('\'') + file + QLatin1Char('\'')) && !error.contains(u'\n'), qPrintable(error));
}

void TestRunReport::drawsATable()
{
    RunRecord record;
    record.digits = {missedDigit(), heardDigit()};
    QCOMPARE(host::digitTable(record),
             QStringLiteral("Sequence  Digit  Played at ms  Heard  Typed  Score  Margin  Latency ms    dBFS  Clipped\n"
                            "       1      1             -      -      -   0.00    0.00           -  -120.0       no\n"
                            "       2      3          4321      7      0   0.99    0.50          61   -21.0      yes\n"));
}

void TestRunReport::drawsNoTableWithoutDigits() { QCOMPARE(host::digitTable(RunRecord()), QString()); }

QTEST_GUILESS_MAIN(TestRunReport)
#include "tst_run_report.moc"
