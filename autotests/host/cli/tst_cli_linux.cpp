// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/cli/cli_process.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

// What Wine cannot show: terminals, signals, a full device, locales, a machine without any device.

namespace {

/// What `list` writes to a terminal of its own, in which TERM and NO_COLOR have the given values.
QByteArray listOnATerminal(const char *terminalKind, const char *noColor)
{
    int terminal = -1;
    const QByteArray program = cliPath().toLocal8Bit();
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        setenv("TERM", terminalKind, 1);
        setenv("NO_COLOR", noColor, 1);
        execl(program.constData(), program.constData(), "list", nullptr);
        _exit(127);
    }
    QByteArray text;
    std::array<char, 4096> buffer{};
    for (ssize_t byteCount = 0; (byteCount = read(terminal, buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), byteCount); // ends with an error once the program has closed its side
    close(terminal);
    waitpid(child, nullptr, 0);
    return text;
}

qint64 serverProcess()
{
    QFile file(qEnvironmentVariable("VIRTUAL_SOUND_CARD_DIR") + QStringLiteral("/pid"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
}

bool hasSocket(qint64 process)
{
    const QDir folder(QStringLiteral("/proc/%1/fd").arg(process));
    for (const QString &name : folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)) {
        std::array<char, 256> target{};
        const QByteArray path = folder.filePath(name).toLocal8Bit();
        if (readlink(path.constData(), target.data(), target.size() - 1) > 0 && QByteArray(target.data()).startsWith("socket:"))
            return true;
    }
    return false;
}

} // namespace

class TestCliLinux : public QObject {
    Q_OBJECT

private slots:
    void stylesTheHeaderOnATerminalOnly_data();
    void stylesTheHeaderOnATerminalOnly();
    void endsOnAnInterrupt_data();
    void endsOnAnInterrupt();
    void saysThatTheOutputCouldNotBeWritten();
    void needsNoUtf8Locale();
    void saysThatTheSoundServerDoesNotAnswer();
    void listsNothingOfAFrozenSoundServer();
    void listsVolumesMuteAndDefault();
    void asksTheServerWhateverDriverIsSet();
    void listsVolumeAndMuteOfAMicrophone();
    void listsMonitors();
    void takesALimitForNoLack_data();
    void takesALimitForNoLack();
};

void TestCliLinux::stylesTheHeaderOnATerminalOnly_data()
{
    QTest::addColumn<QByteArray>("terminal");
    QTest::addColumn<QByteArray>("noColor");
    QTest::addColumn<bool>("isStyled");
    QTest::newRow("terminal") << QByteArray("xterm") << QByteArray() << true;
    QTest::newRow("NO_COLOR") << QByteArray("xterm") << QByteArray("1") << false;
    QTest::newRow("dumb terminal") << QByteArray("dumb") << QByteArray() << false;
}

void TestCliLinux::stylesTheHeaderOnATerminalOnly()
{
    QFETCH(QByteArray, terminal);
    QFETCH(QByteArray, noColor);
    QFETCH(bool, isStyled);
    const QByteArray text = listOnATerminal(terminal.constData(), noColor.constData());
    QVERIFY2(text.startsWith("Reading devices\xE2\x80\xA6\r\n"), text.constData()); // somebody watches
    QVERIFY2(text.contains("Speakers"), text.constData());
    QCOMPARE(text.contains("\x1b[1mNo  Direction"), isStyled);
    QCOMPARE(text.contains('\x1b'), isStyled);
}

void TestCliLinux::endsOnAnInterrupt_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
}

// A frozen sound server holds the program inside the sound library.
void TestCliLinux::endsOnAnInterrupt()
{
    QFETCH(int, signalNumber);
    const auto server = static_cast<pid_t>(serverProcess());
    QVERIFY(server > 0);
    QCOMPARE(kill(server, SIGSTOP), 0);
    const auto thaw = qScopeGuard([server] { kill(server, SIGCONT); });

    QProcess process;
    process.setProcessEnvironment(cliEnvironment());
    process.start(cliPath(), {QStringLiteral("info")});
    QVERIFY(process.waitForStarted());
    // The signal handlers come before the connection.
    QTRY_VERIFY_WITH_TIMEOUT(hasSocket(process.processId()), 30'000);
    kill(static_cast<pid_t>(process.processId()), signalNumber);
    QVERIFY(process.waitForFinished(10'000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // ended by the signal
    QCOMPARE(process.exitCode(), signalNumber);
}

void TestCliLinux::saysThatTheOutputCouldNotBeWritten()
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    process.start(cliPath(), {QStringLiteral("info")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray("TamrexDiagnosticsCLI: the output could not be written\n"));
    QCOMPARE(process.exitCode(), 4);
}

void TestCliLinux::needsNoUtf8Locale()
{
    QProcessEnvironment environment = cliEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1")); // on a terminal it does so anyway
    const CliRun run = runCli({QStringLiteral("h\u00F6ren")}, environment);
    QCOMPARE(run.errors, QByteArray("TamrexDiagnosticsCLI: unknown command 'h\xC3\xB6ren' (try --help)\n"));
    QCOMPARE(run.code, 2);
}

void TestCliLinux::saysThatTheSoundServerDoesNotAnswer()
{
    QProcessEnvironment environment = cliEnvironment();
    environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:/no/such/server"));
    const CliRun table = runCli({QStringLiteral("list")}, environment);
    QCOMPARE(table.errors, QByteArray("The sound server does not answer.\n"));
    QCOMPARE(table.output, QByteArray());
    QCOMPARE(table.code, 3);

    const CliRun json = runCli({QStringLiteral("list"), QStringLiteral("--json")}, environment);
    QCOMPARE(json.code, 3);
    const QJsonObject document = QJsonDocument::fromJson(json.output).object();
    QCOMPARE(document.value(QLatin1String("soundServerAnswers")), QJsonValue(false));
    QVERIFY(document.value(QLatin1String("devices")).isArray());
    QVERIFY(document.value(QLatin1String("devices")).toArray().isEmpty());

    const CliRun run = runCli({QStringLiteral("run"), QStringLiteral("--device"), QStringLiteral("Speakers")}, environment);
    QCOMPARE(run.errors, QByteArray("TamrexDiagnosticsCLI: the sound server does not answer\n"));
    QCOMPARE(run.code, 3);

    const CliRun check = runCli({QStringLiteral("info"), QStringLiteral("--self-check")}, environment);
    QVERIFY2(check.output.contains("sound server                LACKING: it does not answer"), check.output.constData());
    QCOMPARE(check.code, 3);
}

// It takes connections and says nothing on them. The sound library would wait half a minute for it.
void TestCliLinux::listsNothingOfAFrozenSoundServer()
{
    const pulse_truth::FrozenServer frozen;
    QProcess process;
    process.setProcessEnvironment(cliEnvironment());
    process.start(cliPath(), {QStringLiteral("list"), QStringLiteral("--json")});
    QVERIFY(process.waitForFinished(20'000)); // ten times the bound of a question to the server
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 3);
    QCOMPARE(process.readAllStandardError(), QByteArray("The sound server does not answer.\n"));
    const QJsonObject document = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    QCOMPARE(document.value(QLatin1String("soundServerAnswers")), QJsonValue(false));
    QCOMPARE(document.value(QLatin1String("devices")), QJsonValue(QJsonArray()));
}

// A muted PC is the commonest cause of one without sound.
void TestCliLinux::listsVolumesMuteAndDefault()
{
    const QString sink = QStringLiteral("@DEFAULT_SINK@");
    pulse_truth::run({QStringLiteral("set-sink-volume"), sink, QStringLiteral("137%")});
    pulse_truth::run({QStringLiteral("set-sink-mute"), sink, QStringLiteral("1")});
    const auto back = qScopeGuard([&sink] {
        pulse_truth::run({QStringLiteral("set-sink-mute"), sink, QStringLiteral("0")});
        pulse_truth::run({QStringLiteral("set-sink-volume"), sink, QStringLiteral("100%")});
    });
    const CliRun table = runCli({QStringLiteral("list")});
    const QByteArrayList lines = table.output.split('\n');
    QVERIFY2(lines.first().simplified().endsWith("Virtual Volume Muted Default"), lines.first().constData());
    QVERIFY2(lines.at(1).simplified().endsWith("yes 137 % yes yes"), table.output.constData());

    const CliRun json = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    const QJsonValue device = QJsonDocument::fromJson(json.output)[QLatin1String("devices")][0];
    QCOMPARE(device[QLatin1String("volumePercent")], QJsonValue(137));
    QCOMPARE(device[QLatin1String("muted")], QJsonValue(true));
    QCOMPARE(device[QLatin1String("default")], QJsonValue(true));
}

// The module chooses the driver by itself.
void TestCliLinux::asksTheServerWhateverDriverIsSet()
{
    qputenv("SDL_AUDIODRIVER", "dummy");
    const auto unset = qScopeGuard([] { qunsetenv("SDL_AUDIODRIVER"); });
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    const QJsonValue device = QJsonDocument::fromJson(run.output)[QLatin1String("devices")][0];
    QCOMPARE(device[QLatin1String("virtual")], QJsonValue(true));
    QVERIFY(device[QLatin1String("volumePercent")].isDouble());
}

void TestCliLinux::listsVolumeAndMuteOfAMicrophone()
{
    const QString name = QStringLiteral("quiet_microphone");
    pulse_truth::addSource(name);
    const auto back = qScopeGuard([&name] { pulse_truth::remove(name); });
    pulse_truth::set(QStringLiteral("source"), name, {24248, 24248}, true); // 37 %
    const CliRun table = runCli({QStringLiteral("list")});
    QVERIFY2(table.output.simplified().contains(" - - - - yes 37 % yes "), table.output.constData());
    const CliRun json = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    const QJsonValue input = QJsonDocument::fromJson(json.output)[QLatin1String("inputs")][0];
    QCOMPARE(input[QLatin1String("id")].toString(), name);
    QCOMPARE(input[QLatin1String("volumePercent")], QJsonValue(37));
    QCOMPARE(input[QLatin1String("muted")], QJsonValue(true));
}

// By the names that --listen takes.
void TestCliLinux::listsMonitors()
{
    const CliRun table = runCli({QStringLiteral("list")});
    QVERIFY2(table.output.simplified().contains("- monitor Monitor of Speakers - - - - yes - - -"), table.output.constData());
    const CliRun json = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    const QJsonArray inputs = QJsonDocument::fromJson(json.output)[QLatin1String("inputs")].toArray();
    QCOMPARE(inputs.size(), 1);
    QCOMPARE(inputs[0][QLatin1String("name")].toString(), QStringLiteral("Monitor of Speakers"));
    QCOMPARE(inputs[0][QLatin1String("monitor")], QJsonValue(true));
    QVERIFY(inputs[0][QLatin1String("volumePercent")].isNull());
}

void TestCliLinux::takesALimitForNoLack_data()
{
    QTest::addColumn<QByteArray>("limit");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<int>("code");
    QTest::newRow("limit") << QByteArray("true") << QByteArray("limit: colours") << 0;
    QTest::newRow("lack") << QByteArray("false") << QByteArray("LACKING: colours") << 3;
}

// An installation that is whole but for what a graphical host of the test's own says of its pictures.
void TestCliLinux::takesALimitForNoLack()
{
    QFETCH(const QByteArray, limit);
    QFETCH(const QByteArray, state);
    const QTemporaryDir folder;
    const QDir bundle(bundleFolder());
    const QStringList programs{QStringLiteral("TamrexDiagnostics"), QStringLiteral("audio_listener"),
                               QStringLiteral("audio_speaker"), QStringLiteral("volume_guardian")};
    for (const QString &name : bundle.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (!programs.contains(name) && bundle.filePath(name) != cliPath())
            QVERIFY(QFile::link(bundle.filePath(name), folder.filePath(name)));
    }
    QVERIFY(QFile::copy(cliPath(), cliPath(folder.path())));
    for (const QString &name : programs) {
        QFile script(folder.filePath(name));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho '[{\"name\":\"pictures: svg\",\"ok\":false,\"lacking\":\"colours\",\"limit\":" + limit +
                     "}]'\n");
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }
    const CliRun run =
        runCli({QStringLiteral("info"), QStringLiteral("--self-check")}, cliEnvironment(), cliPath(folder.path()));
    QVERIFY2(run.output.contains("pictures: svg               " + state + '\n'), run.output.constData());
    QTEST(run.code, "code");
}

QTEST_GUILESS_MAIN(TestCliLinux)
#include "tst_cli_linux.moc"
