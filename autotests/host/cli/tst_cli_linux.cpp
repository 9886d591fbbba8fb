// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/cli/cli_process.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QScopeGuard>
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
    void listsNothingWithoutASoundServer();
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
    process.start(cliPath(), {QStringLiteral("list")});
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

void TestCliLinux::listsNothingWithoutASoundServer()
{
    QProcessEnvironment environment = cliEnvironment();
    environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:/no/such/server"));
    const CliRun table = runCli({QStringLiteral("list")}, environment);
    QCOMPARE(table.errors, QByteArray("No output device found.\n"));
    QCOMPARE(table.output, QByteArray());
    QCOMPARE(table.code, 0);

    const CliRun json = runCli({QStringLiteral("list"), QStringLiteral("--json")}, environment);
    QCOMPARE(json.code, 0);
    const QJsonValue devices = QJsonDocument::fromJson(json.output).object().value(QLatin1String("devices"));
    QVERIFY(devices.isArray());
    QVERIFY(devices.toArray().isEmpty());
}

QTEST_GUILESS_MAIN(TestCliLinux)
#include "tst_cli_linux.moc"
