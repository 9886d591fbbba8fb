// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/pulse_truth_linux.h"
#include "host/guardian/note_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <functional>

namespace {

constexpr int patienceMilliseconds = 60'000;

struct Outcome {
    int code = -1; ///< -1: did not start, crashed or hung
    QByteArray output;
    QByteArray errors;
};

QString programPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/TamrexDiagnostics"));
}

} // namespace

/// The program itself, from the bundle, with a state folder of its own.
class TestGuiProgram : public QObject {
    Q_OBJECT

private slots:
    void init();
    void answersWithoutADisplay_data();
    void answersWithoutADisplay();
    void refusesAnUnknownDeviceByNamingTheOthers();
    void refusesUnknownNames_data();
    void refusesUnknownNames();
    void tellsThatItNeedsADisplay_data();
    void tellsThatItNeedsADisplay();
    void refusesFoldersThatTakeNoFile_data();
    void refusesFoldersThatTakeNoFile();
    void reportsWhatItCannotPerform();
    void tellsWhatAnInterruptedRunLeft();
    void forgetsAnEarlierVerdict();
    void tellsWhatItsWindowsLack();
    void writesItsLanguage();
    void leavesAForeignConfigurationAlone();
    void endsOnASignal_data();
    void endsOnASignal();

private:
    Outcome run(const QStringList &arguments, const std::function<void(QProcess &)> &whileRunning = {});
    QString ownConfiguration() const { return state_->filePath(QStringLiteral("Tamrex/TamrexDiagnostics/config.ini")); }

    std::unique_ptr<QTemporaryDir> state_;
};

void TestGuiProgram::init()
{
    state_ = std::make_unique<QTemporaryDir>();
    QVERIFY(state_->isValid());
}

Outcome TestGuiProgram::run(const QStringList &arguments, const std::function<void(QProcess &)> &whileRunning)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), state_->path());
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(programPath(), arguments);
    if (!process.waitForStarted(patienceMilliseconds))
        return {};
    if (whileRunning)
        whileRunning(process);
    const bool hasEnded = process.state() == QProcess::NotRunning || process.waitForFinished(patienceMilliseconds);
    if (!hasEnded || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return {-1, process.readAllStandardOutput(), process.readAllStandardError() + process.errorString().toUtf8()};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void TestGuiProgram::answersWithoutADisplay_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("help") << QStringLiteral("--help") << 0 << QByteArray("Usage: TamrexDiagnostics") << QByteArray();
    QTest::newRow("version") << QStringLiteral("--version") << 0 << QByteArray("TamrexDiagnostics 5.12.0.92") << QByteArray();
    QTest::newRow("usage") << QStringLiteral("--nonsense") << 2 << QByteArray()
                           << QByteArray("TamrexDiagnostics: unknown option 'nonsense' (try --help)");
    QTest::newRow("language") << QStringLiteral("--language=xx") << 2 << QByteArray()
                              << QByteArray("TamrexDiagnostics: unknown language 'xx' (known: pt_BR,");
}

void TestGuiProgram::answersWithoutADisplay()
{
    QFETCH(const QString, argument);
    qputenv("QT_QPA_PLATFORM", "no-such-platform");
    const Outcome outcome = run({argument});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTEST(outcome.code, "code");
    QFETCH(const QByteArray, output);
    QFETCH(const QByteArray, errors);
    QVERIFY2(outcome.output.startsWith(output) && outcome.output.isEmpty() == output.isEmpty(), outcome.output.constData());
    QVERIFY2(outcome.errors.startsWith(errors) && outcome.errors.isEmpty() == errors.isEmpty(), outcome.errors.constData());
}

void TestGuiProgram::refusesAnUnknownDeviceByNamingTheOthers()
{
    const Outcome outcome =
        run({QStringLiteral("--unattended"), QStringLiteral("--test"), QStringLiteral("p"), QStringLiteral("--device"),
             QStringLiteral("Nobody"), QStringLiteral("--listen"), QStringLiteral("x")});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.errors.contains("unknown device 'Nobody' (known: "), outcome.errors.constData());
    QVERIFY2(outcome.errors.contains("'Speakers'"), outcome.errors.constData());
}

void TestGuiProgram::refusesUnknownNames_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("complaint");
    QTest::newRow("source") << QStringLiteral("--listen=Ear")
                            << QByteArray(
                                   "unknown capture source 'Ear' (known: 'Monitor of Speakers', 'Monitor of Headphones'");
    QTest::newRow("microphone") << QStringLiteral("--microphone=Ear")
                                << QByteArray("unknown microphone 'Ear' (known: 'Desk Mic')");
    QTest::newRow("output") << QStringLiteral("--speak-through=Ear")
                            << QByteArray("unknown output 'Ear' (known: 'Speakers', 'Headphones')");
}

// Before anything is played.
void TestGuiProgram::refusesUnknownNames()
{
    QFETCH(const QString, option);
    QFETCH(const QByteArray, complaint);
    const QString file = state_->filePath(QStringLiteral("r.json"));
    const Outcome outcome =
        run({QStringLiteral("--unattended"), QStringLiteral("--test=m"), QStringLiteral("--device=Speakers"),
             QStringLiteral("--listen=Monitor of Speakers"), QStringLiteral("--report=") + file, option});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.errors.contains(complaint), outcome.errors.constData());
    QVERIFY(!QFile::exists(file));
}

void TestGuiProgram::tellsThatItNeedsADisplay_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("none") << QString()
                          << QByteArray("TamrexDiagnostics: needs a display; try xvfb-run (could not connect to display)\n");
    QTest::newRow("not there")
        << QStringLiteral(":4711")
        << QByteArray("TamrexDiagnostics: needs a display; try xvfb-run (could not connect to display :4711)\n");
}

void TestGuiProgram::tellsThatItNeedsADisplay()
{
    QFETCH(const QString, display);
    const QByteArray before = qgetenv("DISPLAY"); // the other platform looks at it too
    qputenv("DISPLAY", display.toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QString verdict = state_->filePath(QStringLiteral("verdict"));
    const Outcome outcome =
        run({QStringLiteral("--unattended"), QStringLiteral("--test=p"), QStringLiteral("--device=Speakers"),
             QStringLiteral("--listen=Monitor of Speakers"), QStringLiteral("--verdict-file=") + verdict});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DISPLAY", before);
    QCOMPARE(outcome.code, 3);
    QTEST(outcome.errors, "errors");
    QFile file(verdict);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("no display\n"));
}

void TestGuiProgram::refusesFoldersThatTakeNoFile_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("pictures") << QStringLiteral("--screenshots=/proc/pictures");
    QTest::newRow("report") << QStringLiteral("--report=/proc/r.json");
}

// Before the run, which would be for nothing.
void TestGuiProgram::refusesFoldersThatTakeNoFile()
{
    QFETCH(const QString, option);
    const Outcome outcome = run({QStringLiteral("--unattended"), QStringLiteral("--test=p"),
                                 QStringLiteral("--device=Speakers"), QStringLiteral("--listen=Monitor of Speakers"), option});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.errors.contains("/proc"), outcome.errors.constData());
    QVERIFY2(outcome.output.isEmpty(), outcome.output.constData());
}

void TestGuiProgram::reportsWhatItCannotPerform()
{
    const QString file = state_->filePath(QStringLiteral("r.json"));
    const Outcome outcome =
        run({QStringLiteral("--unattended"), QStringLiteral("--test=m"), QStringLiteral("--device=Speakers"),
             QStringLiteral("--listen=Monitor of Headphones"), QStringLiteral("--microphone=Desk Mic"),
             QStringLiteral("--language=es_ES"), QStringLiteral("--report=") + file});
    QCOMPARE(outcome.code, 3);
    QFile report(file);
    QVERIFY(report.open(QIODevice::ReadOnly));
    const QByteArray text = report.readAll();
    for (const char *part : {"\"REASON_HEARS_ANOTHER\"", "escucha un dispositivo distinto de \302\253Speakers\302\273",
                             "'Monitor of Headphones' hears another device", "\"microphone\": \"Desk Mic\""})
        QVERIFY2(text.contains(part), text.constData());
}

// A start that breaks down before its run must not leave the verdict of another one.
void TestGuiProgram::forgetsAnEarlierVerdict()
{
    const QTemporaryDir folder; // without a module
    const QString program = folder.filePath(QStringLiteral("TamrexDiagnostics"));
    QVERIFY(QFile::copy(programPath(), program));
    QFile verdict(folder.filePath(QStringLiteral("verdict")));
    QVERIFY(verdict.open(QIODevice::WriteOnly) && verdict.write("0\n") == 2);
    verdict.close();
    QProcess process;
    process.start(program,
                  {QStringLiteral("--unattended"), QStringLiteral("--test=p"), QStringLiteral("--device=Speakers"),
                   QStringLiteral("--listen=Monitor of Speakers"), QStringLiteral("--verdict-file=") + verdict.fileName()});
    QVERIFY(process.waitForFinished(patienceMilliseconds));
    QCOMPARE(process.exitCode(), 6);
    QVERIFY(!verdict.exists());
}

// The killed run had raised both; somebody has lowered the second one since.
void TestGuiProgram::tellsWhatAnInterruptedRunLeft()
{
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink1"), {65536, 65536}, false);
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink2"), {13107, 13107}, false);
    const host::NoteFile note(QFileInfo(ownConfiguration()).path());
    QVERIFY(note.write({{{0.375F, false, u"sink1", {24576, 24576}}, {0.75F, true, u"sink2", {49152, 49152}}}, {}}));
    const QString file = state_->filePath(QStringLiteral("r.json"));
    const Outcome outcome = run({QStringLiteral("--unattended"), QStringLiteral("--test=p"),
                                 QStringLiteral("--device=Speakers"), QStringLiteral("--listen=Monitor of Headphones"),
                                 QStringLiteral("--language=en_US"), QStringLiteral("--report=") + file});
    QCOMPARE(outcome.code, 3);
    const pulse_truth::Devices devices = pulse_truth::devices();
    QCOMPARE(devices.at("sink1"), (pulse_truth::Device{{24576, 24576}, false}));
    QCOMPARE(devices.at("sink2"), (pulse_truth::Device{{13107, 13107}, false}));
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink1"), {65536, 65536}, false);
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink2"), {65536, 65536}, false);
    QVERIFY2(
        outcome.errors.contains("TamrexDiagnostics: An interrupted run had raised volumes that were changed since. They stay "
                                "as they are: Headphones\n"),
        outcome.errors.constData());
    QVERIFY2(outcome.errors.contains(": Speakers\n"), outcome.errors.constData());
    QFile report(file);
    QVERIFY(report.open(QIODevice::ReadOnly));
    const QJsonObject written = QJsonDocument::fromJson(report.readAll()).object();
    QCOMPARE(written[QLatin1String("volumesPutBackByGuardian")].toArray(), QJsonArray{QStringLiteral("Speakers")});
}

void TestGuiProgram::tellsWhatItsWindowsLack()
{
    const Outcome outcome = run({QStringLiteral("--self-check")});
    QCOMPARE(outcome.code, 0);
    QVERIFY2(outcome.errors.isEmpty(), outcome.errors.constData());
    for (const char *name : {"pictures: svg", "texts: ja_JP", "texts of Qt: de_DE", "fonts: Chinese", "fonts: Japanese"})
        QVERIFY2(outcome.output.contains(QByteArray("\"name\":\"") + name + "\",\"ok\":true"), outcome.output.constData());
    QVERIFY2(outcome.output.contains("\"limit\":true,\"name\":\"pictures: svg\""), outcome.output.constData());
    QVERIFY2(outcome.output.contains("\"limit\":false,\"name\":\"texts: ja_JP\""), outcome.output.constData());
}

void TestGuiProgram::writesItsLanguage()
{
    const auto isWritten = [this] { return QFileInfo::exists(ownConfiguration()); };
    const Outcome outcome = run({QStringLiteral("--language"), QStringLiteral("nl_NL")}, [&](QProcess &process) {
        QVERIFY(QTest::qWaitFor(isWritten, patienceMilliseconds));
        process.terminate();
    });
    QFile file(ownConfiguration());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("[LANGUAGE]\nDEFAULT_LANGUAGE=nl_NL\n"));
    QCOMPARE(outcome.code, 143);
}

void TestGuiProgram::leavesAForeignConfigurationAlone()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("config.ini")));
    const QByteArray text("[LANGUAGE]\nDEFAULT_LANGUAGE=german\n");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    const Outcome outcome = run({QStringLiteral("--unattended"), QStringLiteral("--test"), QStringLiteral("m"),
                                 QStringLiteral("--device"), QStringLiteral("Speakers"), QStringLiteral("--listen"),
                                 QStringLiteral("Monitor of Headphones"), QStringLiteral("--config"), folder.path()});
    QVERIFY2(outcome.output.contains("(de_DE)"), outcome.output.constData());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), text);
    QVERIFY(!QFileInfo::exists(ownConfiguration()));
}

void TestGuiProgram::endsOnASignal_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("code");
    QTest::newRow("Ctrl-C") << SIGINT << 130;
    QTest::newRow("polite kill") << SIGTERM << 143;
}

void TestGuiProgram::endsOnASignal()
{
    QFETCH(const int, number);
    const auto isWritten = [this] { return QFileInfo::exists(ownConfiguration()); };
    const Outcome outcome = run({}, [&](QProcess &process) {
        QVERIFY(QTest::qWaitFor(isWritten, patienceMilliseconds));
        ::kill(static_cast<pid_t>(process.processId()), number);
    });
    QTEST(outcome.code, "code");
}

QTEST_GUILESS_MAIN(TestGuiProgram)
#include "tst_gui_program.moc"
