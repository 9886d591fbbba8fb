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

#include <csignal>

namespace {

constexpr int patienceMs = 30'000;

QJsonObject reportIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

int codeIn(const QString &path) { return reportIn(path).value(QLatin1String("verdict"))[QLatin1String("code")].toInt(-1); }

QString reasonIn(const QString &path) { return reportIn(path).value(QLatin1String("reasonKeys")).toArray().at(0).toString(); }

bool writeScript(const QString &path, const QByteArray &command)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + command + '\n') > 0 &&
           file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
}

} // namespace

/// The program beside a stand-in for the graphical host, which ends as the test wants. Two devices: "Speakers", "Headphones".
class TestCliRun : public QObject {
    Q_OBJECT

private slots:
    void init();
    void reportsARunThatBrokeDown_data();
    void reportsARunThatBrokeDown();
    void leavesAReportOfTheHostAlone();
    void reportsThatTheHostCannotBeStarted();
    void reportsThatThereIsNoDisplay();
    void goesOnAfterWrongUsage();
    void answersWithTheSignalDuringRefusals();
    void goesOnWithoutADeviceThatIsGone(); // the last: it does not come back

private:
    CliRun run(const QByteArray &end, const QStringList &arguments);
    QString report(const char *name = "r.json") const { return folder_->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> folder_;
    QString program_;
};

// Whatever lies beside the program is linked to; the program itself is where its file is.
void TestCliRun::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    const QDir bundle(bundleFolder());
    const QDir own(folder_->filePath(QStringLiteral("bundle")));
    QVERIFY(QDir().mkpath(own.path()));
    for (const QString &name : bundle.entryList(QDir::NoDotAndDotDot | QDir::AllEntries)) {
        if (!name.startsWith(QStringLiteral("TamrexDiagnostics")))
            QVERIFY(QFile::link(bundle.filePath(name), own.filePath(name)));
    }
    program_ = cliPath(own.path());
    QVERIFY(QFile::copy(cliPath(), program_));
    QVERIFY(QFile::copy(QStringLiteral(STAND_IN), own.filePath(QStringLiteral("TamrexDiagnostics"))));
}

CliRun TestCliRun::run(const QByteArray &end, const QStringList &arguments)
{
    QProcessEnvironment environment = cliEnvironment();
    environment.insert(QStringLiteral("HOST_END"), QString::fromUtf8(end));
    environment.insert(QStringLiteral("HOST_END_Headphones"), qEnvironmentVariable("HOST_END_Headphones"));
    return runCli(QStringList{QStringLiteral("run"), QStringLiteral("--allow-virtual"), QStringLiteral("--device=Speakers")} +
                      arguments,
                  environment, program_);
}

void TestCliRun::reportsARunThatBrokeDown_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<int>("code");
    QTest::addColumn<QStringList>("more");
    const QStringList none;
    QTest::newRow("as if passed") << QByteArray("exit=0") << 4 << none;
    QTest::newRow("as if failed") << QByteArray("exit=1") << 4 << none;
    QTest::newRow("as if refused, for build tools") << QByteArray("exit=3") << 99 << QStringList{QStringLiteral("--gnu-exit")};
    QTest::newRow("crash") << QByteArray("abort") << 4 << none;
    QTest::newRow("after its reports") << QByteArray("report=passed write=0 abort") << 4 << none;
}

void TestCliRun::reportsARunThatBrokeDown()
{
    QFETCH(const QByteArray, end);
    QFETCH(const QStringList, more);
    QStringList arguments = more + QStringList{QStringLiteral("--language=de_DE")};
    for (const char *suffix : {"json", "xml", "html", "txt"})
        arguments << QStringLiteral("--report=") + report() + u'.' + QLatin1String(suffix);
    const CliRun cli = run(end, arguments);
    QTEST(cli.code, "code");
    QVERIFY2(cli.errors.contains("ended without a verdict"), cli.errors.constData());
    QCOMPARE(codeIn(report("r.json.json")), 4);
    for (const char *suffix : {"json", "xml", "html", "txt"}) {
        QFile file(report() + u'.' + QLatin1String(suffix));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        for (const char *part : {"REASON_HOST_BROKE_DOWN", "endete ohne Ergebnis", "Speakers"})
            QVERIFY2(text.contains(part), text.constData());
    }
}

void TestCliRun::leavesAReportOfTheHostAlone()
{
    const CliRun cli = run("report=own write=1 exit=1", {QStringLiteral("--report=") + report()});
    QCOMPARE(cli.code, 1);
    QFile file(report());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("own"));
}

void TestCliRun::reportsThatTheHostCannotBeStarted()
{
    QVERIFY(QFile::remove(folder_->filePath(QStringLiteral("bundle/TamrexDiagnostics"))));
    const CliRun cli = run({}, {QStringLiteral("--report=") + report()});
    QCOMPARE(cli.code, 6);
    QCOMPARE(codeIn(report()), 6);
    QCOMPARE(reasonIn(report()), QStringLiteral("REASON_HOST_NOT_STARTED"));
}

void TestCliRun::reportsThatThereIsNoDisplay()
{
    const CliRun cli = run("write=no_display exit=3", {QStringLiteral("--report=") + report()});
    QCOMPARE(cli.code, 3);
    QCOMPARE(cli.errors, QByteArray()); // the graphical host says it
    QCOMPARE(codeIn(report()), 3);
    QCOMPARE(reasonIn(report()), QStringLiteral("REASON_NO_DISPLAY"));
}

void TestCliRun::goesOnWithoutADeviceThatIsGone()
{
    qputenv("HOST_END_Headphones", "exit=2"); // it knows no such device
    const QString script = folder_->filePath(QStringLiteral("unplug"));
    QVERIFY(
        writeScript(script, "pactl list short modules | awk '/sink_name=sink2/ {print $1}' | xargs -r pactl unload-module"));
    const CliRun cli = run("call=" + script.toUtf8() + " write=1 exit=1",
                           {QStringLiteral("--device=Headphones"), QStringLiteral("--test=p"), QStringLiteral("--test=m"),
                            QStringLiteral("--report=") + report()});
    QCOMPARE(cli.code, 1);
    QCOMPARE(cli.output, QByteArray("  1  p  -  'Speakers'  failed\n"
                                    "  2  p  -  'Headphones'  cannot be performed\n"
                                    "  3  m  -  'Speakers'  failed\n"
                                    "  4  m  -  'Headphones'  cannot be performed\n"));
    for (const char *name : {"r-2.json", "r-4.json"}) {
        QCOMPARE(codeIn(report(name)), 3);
        QCOMPARE(reasonIn(report(name)), QStringLiteral("REASON_DEVICE_GONE"));
    }
}

void TestCliRun::goesOnAfterWrongUsage()
{
    qputenv("HOST_END_Headphones", "exit=2"); // but the device is there
    const CliRun cli = run("write=1 exit=1", {QStringLiteral("--device=Headphones"), QStringLiteral("--test=p"),
                                              QStringLiteral("--test=m"), QStringLiteral("--report=") + report()});
    QCOMPARE(cli.code, 1);
    QCOMPARE(cli.output, QByteArray("  1  p  -  'Speakers'  failed\n"
                                    "  2  p  -  'Headphones'  wrong usage\n"
                                    "  3  m  -  'Speakers'  failed\n"
                                    "  4  m  -  'Headphones'  wrong usage\n"));
    QVERIFY(!QFile::exists(report("r-2.json")));
}

// Each refused run writes its reports at once: a signal among them ends the command as it does among others.
void TestCliRun::answersWithTheSignalDuringRefusals()
{
    QProcess process;
    process.setProcessEnvironment(cliEnvironment());
    process.start(program_, {QStringLiteral("run"), QStringLiteral("--device=Speakers"), QStringLiteral("--test=p"),
                             QStringLiteral("--test=m"), QStringLiteral("--all-languages"),
                             QStringLiteral("--reports=") + folder_->path()});
    QVERIFY(process.waitForStarted());
    const QDir reports(folder_->path());
    while (reports.entryList({QStringLiteral("*.json")}, QDir::Files).isEmpty() && process.state() != QProcess::NotRunning)
        process.waitForFinished(1);
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(patienceMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 143);
    QVERIFY(reports.entryList({QStringLiteral("*.json")}, QDir::Files).size() < 18);
}

QTEST_GUILESS_MAIN(TestCliRun)
#include "tst_cli_run.moc"
