// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/cli/cli_process.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray report =
    R"({"formatVersion":1,"test":{"letter":"p","nameKey":"AUDIO_PLAYBACK_TEST","translated":"Wiedergabe"},)"
    R"("device":{"name":"Speakers"},"language":"de_DE","verdict":{"code":3,"name":"cannot be performed"}})";

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject parsed(const QByteArray &bytes) { return QJsonDocument::fromJson(bytes).object(); }

} // namespace

// The commands that read and write files, and what `run` refuses before it starts anything.
class TestCliCommands : public QObject {
    Q_OBJECT

private slots:
    void convertsAReport();
    void printsAReport();
    void refusesWhatIsNoReport_data();
    void refusesWhatIsNoReport();
    void leavesNothingWhereItCannotWrite();
    void findsTheOwnClipsIntact();
    void findsADamagedClip();
    void findsAnotherSentence();
    void needsAManifest();
    void tellsWhatIsLacking();
    void refusesVirtualDevices_data();
    void refusesVirtualDevices();
    void reportsARefusedRunInEachFormat();
    void reportsEachRefusedRunInItsLanguage();
    void refusesRuns_data();
    void refusesRuns();
};

void TestCliCommands::convertsAReport()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("r.json"));
    QVERIFY(write(source, report));
    const QString page = folder.filePath(QStringLiteral("Bericht \u8033.html"));
    const QString suite = folder.filePath(QStringLiteral("r.xml"));
    const CliRun run = runCli({QStringLiteral("report"), source, QStringLiteral("-o"), page, QStringLiteral("-o"), suite});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.code, 0);
    QVERIFY(read(page).startsWith("<!DOCTYPE html>"));
    QVERIFY(read(page).contains("<span lang=\"de-DE\">Wiedergabe</span>"));
    QVERIFY(read(suite).contains("<skipped message=\"cannot be performed\""));
}

void TestCliCommands::printsAReport()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("r.json"));
    QVERIFY(write(source, report));
    const CliRun run = runCli({QStringLiteral("report"), source});
    QVERIFY2(run.output.startsWith("Audio Playback Test \u2013 Wiedergabe (AUDIO_PLAYBACK_TEST): cannot be performed\n"),
             run.output.constData());
    QVERIFY(!run.output.contains('\r'));
    QCOMPARE(run.code, 0);
}

void TestCliCommands::refusesWhatIsNoReport_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QByteArray>("complaint");
    QTest::newRow("not JSON") << QByteArray("<html>") << QString() << QByteArray("cannot be read: it is no JSON: ");
    QTest::newRow("other JSON") << QByteArray("{}") << QString() << QByteArray("cannot be read: it is no report of a test\n");
    QByteArray denied = report;
    denied.replace("\"code\":3", "\"code\":0");
    QTest::newRow("contradictory") << denied << QString()
                                   << QByteArray("cannot be read: it is no valid report: verdict/name is not 'passed', which "
                                                 "verdict/code 0 stands for\n");
    QTest::newRow("newer") << QByteArray("{\"formatVersion\":99}") << QString() << QByteArray("newer than this program\n");
    QTest::newRow("unknown suffix") << report << QStringLiteral("r.pdf") << QByteArray("its name must end in .json");
}

void TestCliCommands::refusesWhatIsNoReport()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, output);
    QFETCH(const QByteArray, complaint);
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("r.json"));
    QVERIFY(write(source, content));
    QStringList arguments{QStringLiteral("report"), source};
    if (!output.isEmpty())
        arguments << QStringLiteral("--output") << folder.filePath(output);
    const CliRun run = runCli(arguments);
    QVERIFY2(run.errors.contains(complaint), run.errors.constData());
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.code, 2);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void TestCliCommands::leavesNothingWhereItCannotWrite()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("r.json"));
    QVERIFY(write(source, report));
    const QStringList arguments{QStringLiteral("report"), source, QStringLiteral("--output"),
                                folder.filePath(QStringLiteral("none/r.html"))};
    QCOMPARE(runCli(arguments).code, 4);
    QCOMPARE(runCli(arguments + QStringList{QStringLiteral("--gnu-exit")}).code, 99);
}

void TestCliCommands::findsTheOwnClipsIntact()
{
    const CliRun run = runCli({QStringLiteral("clips"), QStringLiteral("verify")});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output.count("10 of 10 clips are as supplied\n"), 9);
    QCOMPARE(run.code, 0);
}

void TestCliCommands::findsADamagedClip()
{
    const QTemporaryDir folder;
    const QString own = bundleFolder() + QStringLiteral("/audio_files/");
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("nl_NL")));
    QVERIFY(QFile::copy(own + QStringLiteral("manifest.sha256"), folder.filePath(QStringLiteral("manifest.sha256"))));
    for (int digit = 0; digit < 9; ++digit) {
        const QString name = QStringLiteral("nl_NL/%1_nl_NL.wav").arg(digit);
        QVERIFY(write(folder.filePath(name), read(own + name) + (digit == 4 ? "x" : "")));
    }
    QStringList arguments{QStringLiteral("clips"), QStringLiteral("verify"),     QStringLiteral("--folder"),
                          folder.path(),           QStringLiteral("--language"), QStringLiteral("nl_NL")};
    const CliRun run = runCli(arguments);
    QCOMPARE(run.output, QByteArray("nl_NL  8 of 10 clips are as supplied\n"
                                    "  nl_NL/4_nl_NL.wav: not the one that was supplied\n"
                                    "  nl_NL/9_nl_NL.wav: missing\n"));
    QCOMPARE(run.code, 1);

    const CliRun json = runCli(arguments << QStringLiteral("--json"));
    QCOMPARE(json.code, 1);
    const QJsonValue language = parsed(json.output).value(QLatin1String("languages"))[0];
    QCOMPARE(language[QLatin1String("intact")].toInt(), 8);
    QCOMPARE(language[QLatin1String("faults")][1][QLatin1String("file")].toString(), QStringLiteral("nl_NL/9_nl_NL.wav"));
}

void TestCliCommands::findsAnotherSentence()
{
    const QTemporaryDir folder;
    const QString own = bundleFolder() + QStringLiteral("/audio_files/");
    const QString sentence = QStringLiteral("operator/sentence_en_US.wav");
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("operator")));
    QVERIFY(QFile::copy(own + QStringLiteral("manifest.sha256"), folder.filePath(QStringLiteral("manifest.sha256"))));
    QVERIFY(write(folder.filePath(sentence), read(own + sentence) + "x"));
    const QStringList arguments{QStringLiteral("clips"), QStringLiteral("verify"), QStringLiteral("--folder"), folder.path()};
    const CliRun run = runCli(arguments);
    QCOMPARE(run.code, 1);
    QVERIFY2(run.output.endsWith("operator  0 of 1 clips are as supplied\n"
                                 "  operator/sentence_en_US.wav: not the one that was supplied\n"),
             run.output.constData());
    const QJsonObject json = parsed(runCli(arguments + QStringList{QStringLiteral("--json")}).output);
    QCOMPARE(json[QLatin1String("operator")][QLatin1String("faults")][0][QLatin1String("file")].toString(), sentence);
    QCOMPARE(json[QLatin1String("languages")].toArray().size(), 9);
}

void TestCliCommands::needsAManifest()
{
    const QTemporaryDir folder;
    const QStringList arguments{QStringLiteral("clips"), QStringLiteral("verify"), QStringLiteral("--folder"), folder.path()};
    const CliRun run = runCli(arguments);
    QCOMPARE(run.errors, QStringLiteral("TamrexDiagnosticsCLI: there is no manifest.sha256 in '%1' to compare the clips with\n")
                             .arg(QDir::toNativeSeparators(folder.path()))
                             .toUtf8());
    QCOMPARE(run.code, 3);
    QCOMPARE(runCli(arguments + QStringList{QStringLiteral("--gnu-exit")}).code, 77);
}

// A program without its companions knows what it cannot do.
void TestCliCommands::tellsWhatIsLacking()
{
    const QTemporaryDir folder;
    const QDir bundle(bundleFolder());
    for (const QString &name : bundle.entryList(QDir::Files)) {
        if (!name.startsWith(QStringLiteral("audio_")))
            QVERIFY(QFile::copy(bundle.filePath(name), QDir(folder.path()).filePath(name)));
    }
    for (const char *plugins : {"platforms", "imageformats"}) { // on Windows they lie beside the programs
        const QDir source(bundle.filePath(QLatin1String(plugins)));
        QVERIFY(QDir(folder.path()).mkpath(QLatin1String(plugins)));
        for (const QString &name : source.entryList(QDir::Files))
            QVERIFY(QFile::copy(source.filePath(name), QDir(folder.path()).filePath(QLatin1String(plugins) + u'/' + name)));
    }
    const QStringList arguments{QStringLiteral("info"), QStringLiteral("--self-check")};
    const CliRun run = runCli(arguments, cliEnvironment(), cliPath(folder.path()));
    QVERIFY2(run.output.contains("program: audio_listener     LACKING: "), run.output.constData());
    QVERIFY2(run.output.contains("program: audio_speaker      LACKING: "), run.output.constData());
    QVERIFY(run.output.contains("program: TamrexDiagnostics  ok\n"));
    QVERIFY2(run.output.contains("windows                     ok\n"), run.output.constData());
    QVERIFY(run.output.contains("texts: ja_JP                ok\n"));
    QVERIFY(run.output.contains("clips: ja_JP                LACKING: "));
    QVERIFY(run.output.contains("pictures: png               ok\n"));
    QCOMPARE(run.code, 3);

    const CliRun json = runCli(arguments + QStringList{QStringLiteral("--json")});
    const QJsonArray checks = parsed(json.output).value(QLatin1String("checks")).toArray();
    QStringList names;
    for (const QJsonValue check : checks)
        names.append(check[QLatin1String("name")].toString().section(u':', 0, 0));
    names.removeDuplicates();
    QCOMPARE(names.join(u','), QStringLiteral("module,sound server,program,windows,pictures,texts,texts of Qt,fonts,clips"));
    QCOMPARE(checks.size(), 1 + 1 + 4 + 1 + 3 + 9 + 8 + 2 + 9 + 1);
    QVERIFY(checks[0][QLatin1String("ok")].toBool());
}

void TestCliCommands::refusesVirtualDevices_data()
{
    QTest::addColumn<QStringList>("more");
    QTest::addColumn<int>("code");
    QTest::newRow("plain") << QStringList() << 3;
    QTest::newRow("for build tools") << QStringList{QStringLiteral("--gnu-exit")} << 77;
}

void TestCliCommands::refusesVirtualDevices()
{
    QFETCH(const QStringList, more);
    const CliRun run =
        runCli(QStringList{QStringLiteral("run"), QStringLiteral("--device"), QStringLiteral("Speakers")} + more);
    QVERIFY2(run.errors.startsWith("TamrexDiagnosticsCLI: 'Speakers' is a virtual device: "), run.errors.constData());
    QTEST(run.code, "code");
}

void TestCliCommands::reportsARefusedRunInEachFormat()
{
    const QTemporaryDir folder;
    QStringList arguments{QStringLiteral("run"),
                          QStringLiteral("--device"),
                          QStringLiteral("Speakers"),
                          QStringLiteral("--test"),
                          QStringLiteral("m"),
                          QStringLiteral("--microphone"),
                          QStringLiteral("Desk Mic"),
                          QStringLiteral("--keep-audio"),
                          folder.filePath(QStringLiteral("h.wav")),
                          QStringLiteral("--language"),
                          QStringLiteral("de_DE")};
    for (const char *suffix : {"json", "xml", "html", "txt"})
        arguments << QStringLiteral("--report") << folder.filePath(QStringLiteral("r.") + QLatin1String(suffix));
    const CliRun run = runCli(arguments);
    QCOMPARE(run.code, 3);
    for (const char *suffix : {"json", "xml", "html", "txt"}) {
        const QByteArray text = read(folder.filePath(QStringLiteral("r.") + QLatin1String(suffix)));
        for (const char *part : {"REASON_VIRTUAL_DEVICE", "ist ein virtuelles Ger", "is a virtual device", "Desk Mic"})
            QVERIFY2(text.contains(part), text.constData());
    }
    const QJsonObject report = parsed(read(folder.filePath(QStringLiteral("r.json"))));
    QCOMPARE(report.value(QLatin1String("verdict"))[QLatin1String("code")].toInt(), 3);
    QCOMPARE(report.value(QLatin1String("progress")).toArray(), QJsonArray());
    QVERIFY(report.value(QLatin1String("recording")).isNull() && report.value(QLatin1String("moduleCode")).isNull());
    QCOMPARE(report.value(QLatin1String("keptAudio")).toString(), QString());
    QCOMPARE(report.value(QLatin1String("listenedTo")).toString(), QStringLiteral("Monitor of Speakers"));
    QCOMPARE(report.value(QLatin1String("device"))[QLatin1String("name")].toString(), QStringLiteral("Speakers"));
    QCOMPARE(report.value(QLatin1String("test"))[QLatin1String("nameKey")].toString(),
             QStringLiteral("MICROPHONE_INTERACTIVE_TEST"));
    QCOMPARE(report.value(QLatin1String("limits")).toArray().size(), 1);
}

void TestCliCommands::reportsEachRefusedRunInItsLanguage()
{
    const QTemporaryDir folder;
    const CliRun run =
        runCli({QStringLiteral("run"), QStringLiteral("--device=Speakers"), QStringLiteral("--test=p"),
                QStringLiteral("--test=m"), QStringLiteral("--all-languages"), QStringLiteral("--reports=") + folder.path()});
    QCOMPARE(run.code, 3);
    QCOMPARE(run.errors.count('\n'), 1); // the device is named once
    QCOMPARE(run.output.count("cannot be performed\n"), 18);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 18 * 3);
    const QByteArray japanese = read(folder.filePath(QStringLiteral("1-Speakers-m-ja_JP.json")));
    QVERIFY2(japanese.contains("\"language\": \"ja_JP\""), japanese.constData());
    QVERIFY(japanese.contains(QStringLiteral("\u4eee\u60f3\u30c7\u30d0\u30a4\u30b9").toUtf8()));
}

void TestCliCommands::refusesRuns_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto add = [](const char *name, const QStringList &arguments, const QByteArray &complaint) {
        QTest::newRow(name) << QStringList{QStringLiteral("run")} + arguments << complaint;
    };
    add("no device", {}, "'run' needs '--device NAME' (list shows them)");
    add("unknown device", {QStringLiteral("--device=Nothing")}, "unknown device 'Nothing' (known: '");
    add("unknown source", {QStringLiteral("--device=0"), QStringLiteral("--listen=Ear")},
        "unknown capture source 'Ear' (known: '");
    add("loopback of nothing", {QStringLiteral("--device=0"), QStringLiteral("--listen=loopback:Ear")},
        "unknown capture source '");
    add("unknown microphone", {QStringLiteral("--device=0"), QStringLiteral("--test=m"), QStringLiteral("--microphone=Ear")},
        "unknown microphone 'Ear' (known: '");
    add("unknown output", {QStringLiteral("--device=0"), QStringLiteral("--test=m"), QStringLiteral("--speak-through=Ear")},
        "unknown output 'Ear' (known: '");
    add("no settings", {QStringLiteral("--device=0"), QStringLiteral("--config=/")},
        "there is no config.ini in '/' (--config)");
    add("unknown format", {QStringLiteral("--device=0"), QStringLiteral("--report=r.doc")},
        "the report 'r.doc' cannot be written: its name must end in .json, .xml, .html or .txt");
    add("no such folder", {QStringLiteral("--device=0"), QStringLiteral("--config=no/such")},
        "'no/such' is not a folder that can be used (--config)");
    add("two languages", {QStringLiteral("--device=0"), QStringLiteral("--config=."), QStringLiteral("--language=de_DE")},
        "'--language' and '--config' exclude each other");
}

void TestCliCommands::refusesRuns()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, complaint);
    const CliRun run = runCli(arguments);
    QVERIFY2(run.errors.startsWith("TamrexDiagnosticsCLI: " + complaint), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    const char *known = run.errors.contains("unknown microphone") ? "Desk Mic'" : "Speakers'";
    QCOMPARE(run.errors.contains("known: "), run.errors.contains(known));
    QCOMPARE(run.code, 2);
}

QTEST_GUILESS_MAIN(TestCliCommands)
#include "tst_cli_commands.moc"
