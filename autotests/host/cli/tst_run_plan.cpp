// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_plan.h"

#include "host/cli/default_source.h"
#include "host/core/capture_source.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using host::CommandLine;
using host::PlannedRun;

namespace {

CommandLine lineOf(const QString &options)
{
    const QStringList words = (QStringLiteral("program run ") + options).split(u' ', Qt::SkipEmptyParts);
    const auto parsed = host::parseCommandLine(words);
    return std::holds_alternative<CommandLine>(parsed) ? std::get<CommandLine>(parsed) : CommandLine();
}

} // namespace

class TestRunPlan : public QObject {
    Q_OBJECT

private slots:
    void runsEachTestOnEachDevice();
    void runsInAllLanguages();
    void leavesTheUsersLanguageAlone();
    void namesReports_data();
    void namesReports();
    void passesOnWhatTheRunNeeds();
    void keepsSoundOnlyWhenAsked();
    void refusesLines_data();
    void refusesLines();
    void makesTheFoldersThatItWritesInto_data();
    void makesTheFoldersThatItWritesInto();
};

void TestRunPlan::runsEachTestOnEachDevice()
{
    const QList<PlannedRun> runs = host::planRuns(lineOf(QStringLiteral("--device 0 --device 1 --test p --test m")),
                                                  {QStringLiteral("A"), QStringLiteral("B")});
    QStringList shown;
    for (const PlannedRun &run : runs)
        shown.append(
            QStringLiteral("%1%2%3%4%5").arg(run.number).arg(run.test, run.device).arg(run.deviceNumber).arg(run.language));
    QCOMPARE(shown.join(u' '), QStringLiteral("1pA1 2pB2 3mA1 4mB2"));
    const QList<PlannedRun> one = host::planRuns(lineOf(QStringLiteral("--device 0")), {QStringLiteral("A")});
    QCOMPARE(one.size(), 1);
    QCOMPARE(one[0].number, 0);
    QCOMPARE(one[0].test, QStringLiteral("p"));
}

void TestRunPlan::runsInAllLanguages()
{
    const QList<PlannedRun> runs =
        host::planRuns(lineOf(QStringLiteral("--device 0 --test p --test m --all-languages")), {QStringLiteral("A")});
    QCOMPARE(runs.size(), 18);
    QStringList codes;
    for (const PlannedRun &run : runs.mid(0, 9))
        codes.append(run.language);
    codes.sort();
    QCOMPARE(codes.join(u' '), QStringLiteral("de_DE en_US es_ES fr_FR it_IT ja_JP nl_NL pt_BR zh_CN"));
    QVERIFY(std::all_of(runs.begin(), runs.begin() + 9, [](const PlannedRun &run) { return run.test == QLatin1String("p"); }));
    QVERIFY(std::all_of(runs.begin() + 9, runs.end(), [](const PlannedRun &run) { return run.test == QLatin1String("m"); }));
}

// The graphical host keeps what --language says for later starts.
void TestRunPlan::leavesTheUsersLanguageAlone()
{
    const CommandLine line = lineOf(QStringLiteral("--device 0 --language ja_JP"));
    const QList<PlannedRun> runs = host::planRuns(line, {QStringLiteral("A")});
    QCOMPARE(runs[0].language, QStringLiteral("ja_JP"));
    const QStringList arguments = host::argumentsOf(line, runs[0], QStringLiteral("folder"));
    QVERIFY(arguments.contains(QStringLiteral("--config=folder")));
    QVERIFY(arguments.filter(QStringLiteral("--language")).isEmpty());
    QVERIFY(host::argumentsOf(line, runs[0], {}).filter(QStringLiteral("--config")).isEmpty());
}

void TestRunPlan::namesReports_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("Speakers") << QStringLiteral("en_US") << QStringLiteral("2-Speakers-p-en_US");
    QTest::newRow("own language") << QStringLiteral("Speakers") << QString() << QStringLiteral("2-Speakers-p");
    QTest::newRow("path") << QStringLiteral("../../etc/x\\y:z") << QString() << QStringLiteral("2-______etc_x_y_z-p");
    QTest::newRow("other letters") << QStringLiteral("H\u00F6rer \u8033") << QString() << QStringLiteral("2-H_rer__-p");
    QTest::newRow("long") << QString(300, u'a') << QString() << QStringLiteral("2-") + QString(60, u'a') + QStringLiteral("-p");
}

void TestRunPlan::namesReports()
{
    QFETCH(const QString, device);
    QFETCH(const QString, language);
    PlannedRun run{QStringLiteral("p"), device, language, 2, 1};
    QTEST(host::reportNameOf(run), "name");
}

void TestRunPlan::passesOnWhatTheRunNeeds()
{
    const CommandLine line =
        lineOf(QStringLiteral("--device 0 --test p --test m --microphone Mic --speak-through Out --report r.json "
                              "--reports . --screenshots s --listen Ear"));
    const QList<PlannedRun> runs = host::planRuns(line, {QStringLiteral("A")});
    const QStringList playback = host::argumentsOf(line, runs[0], {});
    QCOMPARE(playback, (QStringList{QStringLiteral("--unattended"), QStringLiteral("--test=p"), QStringLiteral("--device=A"),
                                    QStringLiteral("--listen=Ear"), QStringLiteral("--screenshots=s"),
                                    QStringLiteral("--report=r-1.json"), QStringLiteral("--report=./1-A-p.json"),
                                    QStringLiteral("--report=./1-A-p.xml"), QStringLiteral("--report=./1-A-p.html")}));
    const QStringList microphone = host::argumentsOf(line, runs[1], {});
    QVERIFY(microphone.contains(QStringLiteral("--microphone=Mic")) &&
            microphone.contains(QStringLiteral("--speak-through=Out")));
    QVERIFY(microphone.contains(QStringLiteral("--report=./1-A-m.html")));
    const CommandLine plain = lineOf(QStringLiteral("--device 0"));
    const PlannedRun run = host::planRuns(plain, {QStringLiteral("A")})[0];
    QVERIFY(host::argumentsOf(plain, run, {}).contains(QStringLiteral("--listen=") + host::defaultSource(QStringLiteral("A"))));
    const QString loopback = QStringLiteral("loopback:B");
    QVERIFY(host::argumentsOf(lineOf(QStringLiteral("--device 0 --listen ") + loopback), run, {})
                .contains(QStringLiteral("--listen=") + host::systemSource(loopback)));
    const QString check = QStringLiteral("--channel-check");
    QVERIFY(!host::argumentsOf(plain, run, {}).contains(check));
    QVERIFY(host::argumentsOf(lineOf(QStringLiteral("--device 0 --channel-check")), run, {}).contains(check));
}

void TestRunPlan::keepsSoundOnlyWhenAsked()
{
    const CommandLine plain = lineOf(QStringLiteral("--device 0"));
    const QList<PlannedRun> one = host::planRuns(plain, {QStringLiteral("A")});
    QVERIFY(host::argumentsOf(plain, one[0], {}).filter(QStringLiteral("--keep-audio")).isEmpty());
    const CommandLine kept = lineOf(QStringLiteral("--device 0 --test p --test m --keep-audio a/h.wav"));
    const QList<PlannedRun> two = host::planRuns(kept, {QStringLiteral("A")});
    QVERIFY(host::argumentsOf(kept, two[1], {}).contains(QStringLiteral("--keep-audio=a/h-2.wav")));
    QVERIFY(host::argumentsOf(kept, one[0], {}).contains(QStringLiteral("--keep-audio=a/h.wav")));
}

void TestRunPlan::refusesLines_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("complaint");
    const auto add = [](const char *options, const char *complaint) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(complaint);
    };
    add("--test p", "'run' needs '--device NAME' (list shows them)");
    add("--device 0 --language de_DE --all-languages", "'--language' and '--all-languages' exclude each other");
    add("--device 0 --config . --all-languages", "'--config' and '--all-languages' exclude each other");
    add("--device 0 --microphone Mic", "'--microphone' goes with '--test m' only");
    add("--device 0 --test p --speak-through Out", "'--speak-through' goes with '--test m' only");
    add("--device 0 --keep-audio h.mp3", "the sound 'h.mp3' cannot be kept: its name must end in .wav");
    add("--device 0 --reports no/such", "nothing can be written into 'no/such' (--reports)");
    add("--device 0 --screenshots no/such", "nothing can be written into 'no/such' (--screenshots)");
    add("--device 0 --config no/such", "'no/such' is not a folder that can be used (--config)");
    add("--device 0 --report no/such/r.json", "the report 'no/such/r.json' cannot be written: its folder is missing or closed");
    add("--device 0 --keep-audio no/such/h.wav", "the sound 'no/such/h.wav' cannot be kept: its folder is missing or closed");
    const QString inAFile = QCoreApplication::applicationFilePath() + QStringLiteral("/pictures");
    QTest::newRow("pictures below a file") << QStringLiteral("--device 0 --screenshots ") + inAFile
                                           << QStringLiteral("nothing can be written into '%1' (--screenshots)").arg(inAFile);
#ifndef Q_OS_WIN
    add("--device 0 --reports /proc", "nothing can be written into '/proc' (--reports)");
#endif
}

void TestRunPlan::refusesLines()
{
    QFETCH(const QString, options);
    const auto wrong = host::checkRun(lineOf(options));
    QVERIFY(wrong);
    QTEST(wrong->message, "complaint");
}

void TestRunPlan::makesTheFoldersThatItWritesInto_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("reports") << QStringLiteral("--reports");
    QTest::newRow("pictures") << QStringLiteral("--screenshots");
}

// The last part of the path only, which an example of the help names without making it.
void TestRunPlan::makesTheFoldersThatItWritesInto()
{
    QFETCH(const QString, option);
    const QTemporaryDir folder;
    const QString made = folder.filePath(QStringLiteral("results"));
    const QString deeper = folder.filePath(QStringLiteral("more/results"));
    QVERIFY(!host::checkRun(lineOf(QStringLiteral("--device 0 %1 %2/").arg(option, made))));
    QVERIFY(QDir(made).exists() && QDir(made).isEmpty());
    QVERIFY(host::checkRun(lineOf(QStringLiteral("--device 0 %1 %2").arg(option, deeper))));
    QVERIFY(!QDir(folder.filePath(QStringLiteral("more"))).exists());
}

QTEST_GUILESS_MAIN(TestRunPlan)
#include "tst_run_plan.moc"
