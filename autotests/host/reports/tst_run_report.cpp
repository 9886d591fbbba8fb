// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/json_schema.h"
#include "autotests/host/reports/sample_record.h"
#include "host/reports/report_formats.h"
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

using host::RunRecord;

namespace {

QJsonObject parsed(const RunRecord &record) { return QJsonDocument::fromJson(host::runReport(record)).object(); }

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Q_DECLARE_METATYPE(host::RunRecord)

class TestRunReport : public QObject {
    Q_OBJECT

private slots:
    void tellsTheRun();
    void tellsEveryDigit();
    void tellsHowTheLatencySpreads();
    void tellsWhereSoundWasKept();
    void tellsTheRecording();
    void tellsWhatIsNotKnownAsNull();
    void namesEachVerdict_data();
    void namesEachVerdict();
    void isNeverAPassThatTheExitCodeDenies();
    void putsTheLimitsLast();
    void writesTheWholeFile();
    void keepsTheOldFileWhenItCannotWrite();
    void namesTheFileThatItCannotWrite();
    void keepsToItsSchema_data();
    void keepsToItsSchema();
    void bringsTheFirstVersionToItsSchema();
    void findsTheReasonOfAFailureOfTheFirstVersion();
    void schemaRefusesWhatIsWrong_data();
    void schemaRefusesWhatIsWrong();
    void bringsKeysAndTranslations();
    void tellsWhyInThreeForms_data();
    void tellsWhyInThreeForms();
    void tellsTheMicrophoneWithoutARecording();
    void knowsWhatWasPlayedWhenItWasAccepted();
    void refusesAnUnknownSuffix();
};

void TestRunReport::tellsTheRun()
{
    const QJsonObject report = parsed(playbackRecord());
    QCOMPARE(report.value(QLatin1String("formatVersion")).toInt(), 2);
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
    QCOMPARE(report.value(QLatin1String("volumesPutBackByGuardian")).toArray(), QJsonArray{QStringLiteral("Speakers")});
    QCOMPARE(report.value(QLatin1String("screenshots")).toArray(), QJsonArray{QStringLiteral("01-prompt.png")});
    QCOMPARE(report.value(QLatin1String("listenedTo")).toString(), QStringLiteral("Monitor of Speakers"));
    QVERIFY(report.value(QLatin1String("unattended")).toBool());
}

void TestRunReport::tellsEveryDigit()
{
    const QJsonObject digit = parsed(fullRecord()).value(QLatin1String("digits")).toArray().at(1).toObject();
    const QJsonObject measured{{QStringLiteral("snrDb"), 62.3},
                               {QStringLiteral("residualDbfs"), -83.2},
                               {QStringLiteral("clockErrorPpm"), -4.0},
                               {QStringLiteral("peakDbfs"), -3.1},
                               {QStringLiteral("channelDbfs"), QJsonArray{-21.0, -60.6}},
                               {QStringLiteral("clippedFrameCount"), 17},
                               {QStringLiteral("envelopeStepMs"), 5},
                               {QStringLiteral("lowest"), QJsonArray{-0.25, -0.5, -0.1}},
                               {QStringLiteral("highest"), QJsonArray{0.2, 0.4, 0.1}},
                               {QStringLiteral("lowestBandHz"), 100},
                               {QStringLiteral("bandLevelsDbfs"), QJsonArray{-40, -30.5, -90}}};
    const QJsonObject expected{{QStringLiteral("sequence"), 2},      {QStringLiteral("position"), 3},
                               {QStringLiteral("playedAtMs"), 4321}, {QStringLiteral("played"), QJsonValue::Null},
                               {QStringLiteral("heard"), 7},         {QStringLiteral("typed"), 0},
                               {QStringLiteral("score"), 0.9877},    {QStringLiteral("margin"), 0.5},
                               {QStringLiteral("latencyMs"), 61},    {QStringLiteral("levelDbfs"), -21.0},
                               {QStringLiteral("clipped"), true},    {QStringLiteral("measured"), measured}};
    QCOMPARE(digit, expected);
}

void TestRunReport::tellsHowTheLatencySpreads()
{
    RunRecord record = playbackRecord();
    QVERIFY(parsed(record).value(QLatin1String("latency")).isNull());
    for (const double latency : {70.4, -1.0, 55.0, 61.0, 0.0}) {
        record.digits.append(heardDigit());
        record.digits.last().latencyMs = latency;
    }
    const auto spread = [](int count, double lowest, double median, double highest) {
        return QJsonObject{{QStringLiteral("digitCount"), count},
                           {QStringLiteral("lowestMs"), lowest},
                           {QStringLiteral("medianMs"), median},
                           {QStringLiteral("highestMs"), highest}};
    };
    QCOMPARE(parsed(record).value(QLatin1String("latency")).toObject(), spread(4, 0, 58, 70));
    record.digits.removeLast();
    QCOMPARE(parsed(record).value(QLatin1String("latency")).toObject(), spread(3, 55, 61, 70));
}

void TestRunReport::tellsWhereSoundWasKept()
{
    RunRecord record = playbackRecord();
    QCOMPARE(parsed(record).value(QLatin1String("keptAudio")), QJsonValue(QString()));
    record.keptAudio = QStringLiteral("heard.wav");
    QCOMPARE(parsed(record).value(QLatin1String("keptAudio")).toString(), QStringLiteral("heard.wav"));
}

void TestRunReport::tellsTheRecording()
{
    RunRecord record = playbackRecord();
    QVERIFY(parsed(record).value(QLatin1String("recording")).isNull());
    record.recording = microphoneRecord().recording;
    const QJsonObject expected{{QStringLiteral("microphone"), QStringLiteral("Mic <1>")},
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
                               {QStringLiteral("envelopeStepMs"), 20},
                               {QStringLiteral("lowest"), QJsonArray{-0.123, -0.5}},
                               {QStringLiteral("highest"), QJsonArray{0.25, 0.568}},
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
    for (const char *key : {"playedAtMs", "played", "measured", "heard", "typed", "latencyMs"})
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
    QVERIFY(!report.value(QLatin1String("stopped")).toBool());
    QCOMPARE(report.value(QLatin1String("reason")).toString(), code == 0 ? QString() : QStringLiteral("listener lost"));
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
    const QString file = folder.filePath(QStringLiteral("report.json"));
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

void TestRunReport::keepsToItsSchema_data()
{
    QTest::addColumn<RunRecord>("record");
    RunRecord passed = fullRecord();
    passed.moduleCode = passed.code = 0;
    passed.messages.clear();
    RunRecord unfinished = playbackRecord();
    unfinished.endedUtc = QDateTime();
    unfinished.digits = {missedDigit()};
    unfinished.digits.first().measured.emplace();
    QTest::newRow("failed") << fullRecord();
    QTest::newRow("passed") << passed;
    QTest::newRow("nothing measurable") << unfinished;
    QTest::newRow("microphone") << microphoneRecord();
    RunRecord unasked = microphoneRecord();
    unasked.recording = host::HeardRecording();
    QTest::newRow("microphone unheard") << unasked;
    RunRecord refused = playbackRecord();
    refused.wasModuleCalled = false;
    QTest::newRow("module not called") << refused;
    RunRecord muted = microphoneRecord();
    muted.microphone = QStringLiteral("Mic <1>");
    muted.deviceVolume = {host::EndpointState{37, true}, host::EndpointState{37, true}};
    muted.machine.hostName = QStringLiteral("desk-7");
    QTest::newRow("muted") << muted;
}

void TestRunReport::keepsToItsSchema()
{
    QFETCH(const RunRecord, record);
    const QStringList errors = schemaErrors(parsed(record), publishedSchema());
    QVERIFY2(errors.isEmpty(), qPrintable(errors.join(u'\n')));
}

void TestRunReport::bringsTheFirstVersionToItsSchema()
{
    QJsonObject old = parsed(microphoneRecord());
    old.insert(QStringLiteral("restoredVolumes"), old.take(QStringLiteral("volumesPutBackByGuardian")));
    old.insert(QStringLiteral("formatVersion"), 1);
    for (const char *key : {"microphone", "reasonKeys", "reasonTranslated"})
        old.remove(QLatin1String(key));
    const auto read = host::readReport(QJsonDocument(old).toJson());
    QVERIFY(std::holds_alternative<QJsonObject>(read));
    const auto &report = std::get<QJsonObject>(read);
    QCOMPARE(schemaErrors(report, publishedSchema()), QStringList());
    QCOMPARE(report.value(QLatin1String("microphone")).toString(), QStringLiteral("Mic <1>"));
    QCOMPARE(report.value(QLatin1String("volumesPutBackByGuardian")).toArray(), QJsonArray{QStringLiteral("Speakers")});
}

// Their messages were all that told it.
void TestRunReport::findsTheReasonOfAFailureOfTheFirstVersion()
{
    RunRecord record = microphoneRecord();
    record.moduleCode = record.code = 1;
    record.messages = {{QStringLiteral("WRONG_SEQUENCE"), 2}};
    QJsonObject old = parsed(record);
    old.insert(QStringLiteral("formatVersion"), 1);
    old.insert(QStringLiteral("reason"), QString());
    const auto read = host::readReport(QJsonDocument(old).toJson());
    QVERIFY(std::holds_alternative<QJsonObject>(read));
    const auto &report = std::get<QJsonObject>(read);
    QCOMPARE(report.value(QLatin1String("reason")).toString(), QStringLiteral("WRONG_SEQUENCE"));
    QCOMPARE(report.value(QLatin1String("reasonKeys")).toArray(), QJsonArray{QStringLiteral("WRONG_SEQUENCE")});
}

void TestRunReport::schemaRefusesWhatIsWrong_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("another version") << QStringLiteral("formatVersion") << QJsonValue(1);
    QTest::newRow("local time") << QStringLiteral("startedUtc") << QJsonValue(QStringLiteral("2026-03-01T10:00:00.250+01:00"));
    QTest::newRow("missing") << QStringLiteral("limits") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("unknown member") << QStringLiteral("host") << QJsonValue(1);
    QTest::newRow("another code") << QStringLiteral("verdict")
                                  << QJsonValue(QJsonObject{{QStringLiteral("code"), 2},
                                                            {QStringLiteral("name"), QStringLiteral("passed")}});
    QTest::newRow("a digit beyond nine") << QStringLiteral("digits")
                                         << QJsonValue(QJsonArray{QJsonObject{{QStringLiteral("heard"), 10}}});
    QTest::newRow("another answer") << QStringLiteral("recording")
                                    << QJsonValue(QJsonObject{{QStringLiteral("answer"), QStringLiteral("perhaps")}});
    QTest::newRow("a text for a flag") << QStringLiteral("stopped") << QJsonValue(QStringLiteral("no"));
}

void TestRunReport::schemaRefusesWhatIsWrong()
{
    QFETCH(const QString, member);
    QFETCH(const QJsonValue, value);
    QJsonObject report = parsed(fullRecord());
    report.insert(member, value);
    const QStringList errors = schemaErrors(report, publishedSchema());
    QVERIFY(!errors.isEmpty());
    for (const QString &error : errors)
        QVERIFY2(error.startsWith(QStringLiteral("report.") + member), qPrintable(error));
}

void TestRunReport::bringsKeysAndTranslations()
{
    const auto lookUp = [](const QString &key) { return QStringLiteral("\u300C%1\u300D").arg(key); };
    const QJsonObject report = QJsonDocument::fromJson(host::runReport(playbackRecord(), lookUp)).object();
    const QJsonValue message = report.value(QLatin1String("messages"))[0];
    QCOMPARE(message[QLatin1String("text")].toString(), QStringLiteral("USER_DID_NOT_REPORT_SOUND"));
    QCOMPARE(message[QLatin1String("translated")].toString(), QStringLiteral("\u300CUSER_DID_NOT_REPORT_SOUND\u300D"));
    QCOMPARE(report.value(QLatin1String("test"))[QLatin1String("translated")].toString(),
             QStringLiteral("\u300CAUDIO_PLAYBACK_TEST\u300D"));
    QCOMPARE(report.value(QLatin1String("progress"))[0][QLatin1String("translated")].toString(), QString());
    QCOMPARE(parsed(playbackRecord()).value(QLatin1String("messages"))[0][QLatin1String("translated")].toString(),
             QStringLiteral("USER_DID_NOT_REPORT_SOUND"));
}

void TestRunReport::tellsWhyInThreeForms_data()
{
    QTest::addColumn<RunRecord>("record");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("translated");
    RunRecord told = playbackRecord();
    told.messages.append({QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS"), 0});
    QTest::newRow("the module's") << told << QStringLiteral("USER_DID_NOT_REPORT_SOUND POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS")
                                  << QStringLiteral("The user reported that no sound was heard. "
                                                    "Possibly defective components: Speakers")
                                  << QStringLiteral("<USER_DID_NOT_REPORT_SOUND> "
                                                    "<POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS>");
    RunRecord own = told;
    own.code = 4;
    own.reason = QStringLiteral("listener lost");
    QTest::newRow("the host's") << own << QStringLiteral("REASON_LISTENER_LOST") << QStringLiteral("listener lost")
                                << QStringLiteral("<REASON_LISTENER_LOST>");
    RunRecord passed = playbackRecord();
    passed.code = 0;
    passed.messages.clear();
    QTest::newRow("none") << passed << QString() << QString() << QString();
}

void TestRunReport::tellsWhyInThreeForms()
{
    QFETCH(const RunRecord, record);
    const auto lookUp = [](const QString &key) { return QStringLiteral("<%1>").arg(key); };
    const QJsonObject report = QJsonDocument::fromJson(host::runReport(record, lookUp)).object();
    QStringList keys;
    const QJsonArray list = report.value(QLatin1String("reasonKeys")).toArray();
    for (const QJsonValue key : list)
        keys.append(key.toString());
    QTEST(keys.join(u' '), "keys");
    QTEST(report.value(QLatin1String("reason")).toString(), "english");
    QTEST(report.value(QLatin1String("reasonTranslated")).toString(), "translated");
}

void TestRunReport::tellsTheMicrophoneWithoutARecording()
{
    RunRecord interrupted = microphoneRecord();
    interrupted.recording.reset();
    interrupted.microphone = QStringLiteral("Mic <1>");
    QCOMPARE(parsed(interrupted).value(QLatin1String("microphone")).toString(), QStringLiteral("Mic <1>"));
}

void TestRunReport::knowsWhatWasPlayedWhenItWasAccepted()
{
    RunRecord record = fullRecord();
    record.moduleCode = record.code = 0;
    const QJsonValue digits = parsed(record).value(QLatin1String("digits"));
    QVERIFY(digits[0][QLatin1String("played")].isNull()); // of the first sequence, which was not accepted
    QCOMPARE(digits[1][QLatin1String("played")].toInt(-1), 0);
}

void TestRunReport::refusesAnUnknownSuffix()
{
    const QTemporaryDir folder;
    QString error;
    QVERIFY(!host::writeRunReport(playbackRecord(), folder.filePath(QStringLiteral("report.doc")), &error));
    QVERIFY2(error.endsWith(QStringLiteral("its name must end in .json, .xml, .html or .txt")), qPrintable(error));
    QVERIFY(QDir(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(TestRunReport)
#include "tst_run_report.moc"
