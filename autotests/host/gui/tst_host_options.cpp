// SPDX-License-Identifier: Apache-2.0
#include "host/gui/options.h"

#include "host/gui/interrupt_watcher.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTest>

#include <algorithm>

namespace {

std::variant<host::Options, host::OptionsError> read(const QString &line)
{
    return host::readOptions(QStringList{QStringLiteral("TamrexDiagnostics")} + line.split(u' ', Qt::SkipEmptyParts));
}

QString shipped(const char *suffix)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/packaging/linux/TamrexDiagnostics.") + QLatin1String(suffix));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestHostOptions : public QObject {
    Q_OBJECT

private slots:
    void startsThePlainWindowWithoutArguments();
    void readsAnUnattendedRun();
    void readsAMicrophoneRun();
    void listensWithoutAnOperator();
    void readsSeveralEvents();
    void makesPathsAbsolute();
    void answersHelpBeforeAnythingElse();
    void refusesWhatItCannotDo_data();
    void refusesWhatItCannotDo();
    void explainsEveryOption();
    void shipsTheManualOfItsOptions();
    void tellsInTheManualWhatEachOptionIs();
    void tellsInTheManualEveryExitCode();
    void shipsTheCompletionOfItsOptions();
};

void TestHostOptions::startsThePlainWindowWithoutArguments()
{
    const auto read_ = read({});
    const auto *options = std::get_if<host::Options>(&read_);
    QVERIFY(options != nullptr);
    QVERIFY(!options->isUnattended && !options->isDeveloper && !options->isHelp && !options->isVerbose);
    QVERIFY(options->schedule.events.isEmpty() && !options->schedule.stopAfter);
}

void TestHostOptions::readsAnUnattendedRun()
{
    const auto result = read(QStringLiteral(
        "--unattended --verbose --test p --device Speakers --listen mic1 --mistype 2 --language de_DE --stop-after 1500"));
    const auto *options = std::get_if<host::Options>(&result);
    QVERIFY(options != nullptr);
    QVERIFY(options->isUnattended && options->isVerbose);
    QCOMPARE(options->test, QStringLiteral("p"));
    QCOMPARE(options->device, QStringLiteral("Speakers"));
    QCOMPARE(options->source, QStringLiteral("mic1"));
    QCOMPARE(options->mistypedSequences, 2);
    QVERIFY(!options->isChannelCheck);
    QCOMPARE(options->language, QStringLiteral("de_DE"));
    QCOMPARE(options->schedule.stopAfter, std::chrono::milliseconds(1500));
}

void TestHostOptions::readsAMicrophoneRun()
{
    const auto result =
        read(QStringLiteral("--unattended --test m --device Speakers --listen x --microphone Mic --speak-through Headphones "
                            "--channel-check"));
    const auto *options = std::get_if<host::Options>(&result);
    QVERIFY(options != nullptr);
    QCOMPARE(options->microphone, QStringLiteral("Mic"));
    QCOMPARE(options->speakThrough, QStringLiteral("Headphones"));
    QVERIFY(options->isChannelCheck);
}

// For the level beside the dialog of a person.
void TestHostOptions::listensWithoutAnOperator()
{
    const auto result = read(QStringLiteral("--listen mic1"));
    const auto *options = std::get_if<host::Options>(&result);
    QVERIFY(options != nullptr && !options->isUnattended);
    QCOMPARE(options->source, QStringLiteral("mic1"));
}

void TestHostOptions::readsSeveralEvents()
{
    const auto result = read(QStringLiteral("--developer --simulate-event 0@10 --simulate-event 31@2000"));
    const auto *options = std::get_if<host::Options>(&result);
    QVERIFY(options != nullptr);
    QVERIFY(options->isDeveloper);
    const QList<QPair<int, std::chrono::milliseconds>> events{{0, std::chrono::milliseconds(10)},
                                                              {31, std::chrono::milliseconds(2000)}};
    QCOMPARE(options->schedule.events, events);
}

void TestHostOptions::makesPathsAbsolute()
{
    QVERIFY(QDir().mkpath(QStringLiteral("settings")));
    QFile settings(QStringLiteral("settings/config.ini"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    const auto result = read(QStringLiteral("--unattended --test m --device 0 --listen x --report r.json --report r.HTML "
                                            "--screenshots pictures --keep-audio h.wav --config settings --verdict-file v"));
    const auto *options = std::get_if<host::Options>(&result);
    QVERIFY(options != nullptr);
    const QDir current = QDir::current();
    QCOMPARE(options->reportFiles, (QStringList{current.absoluteFilePath(QStringLiteral("r.json")),
                                                current.absoluteFilePath(QStringLiteral("r.HTML"))}));
    QCOMPARE(options->screenshotsFolder, QDir::current().absoluteFilePath(QStringLiteral("pictures")));
    QCOMPARE(options->keptAudio, current.absoluteFilePath(QStringLiteral("h.wav")));
    QCOMPARE(options->verdictFile, current.absoluteFilePath(QStringLiteral("v")));
    QCOMPARE(options->configFolder, current.absoluteFilePath(QStringLiteral("settings")));
}

void TestHostOptions::answersHelpBeforeAnythingElse()
{
    for (const char *line : {"--help", "-h", "--test q --help", "--unattended --help extra"}) {
        const auto result = read(QLatin1String(line));
        const auto *options = std::get_if<host::Options>(&result);
        QVERIFY2(options != nullptr && options->isHelp, line);
    }
}

void TestHostOptions::refusesWhatItCannotDo_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *name, const char *line, const char *part) {
        QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(part);
    };
    row("unknown option", "--nonsense", "'nonsense'");
    row("positional", "list", "'list'");
    row("no test", "--unattended --device 0 --listen x", "--test p");
    row("unknown test", "--unattended --test q --device 0 --listen x", "'q' (known: p, m)");
    row("no device", "--unattended --test p --listen x", "--device NAME");
    row("no source", "--unattended --test p --device 0", "--listen SOURCE");
    row("test without unattended", "--test p", "'--test' goes with '--unattended' only");
    row("report of no known format", "--unattended --test p --device 0 --listen x --report r.pdf",
        "its name must end in .json");
    row("sound without unattended", "--keep-audio h.wav", "'--keep-audio' goes with '--unattended' only");
    row("sound of no known format", "--unattended --test p --device 0 --listen x --keep-audio h.mp3",
        "its name must end in .wav");
    row("report without unattended", "--report x", "'--report' goes with");
    row("microphone without unattended", "--microphone x", "'--microphone' goes with '--unattended' only");
    row("microphone of the playback test", "--unattended --test p --device 0 --listen x --microphone y",
        "'--microphone' goes with '--test m' only");
    row("speech in the playback test", "--unattended --test p --device 0 --listen x --speak-through y",
        "'--speak-through' goes with '--test m' only");
    row("channel check without unattended", "--channel-check", "'--channel-check' goes with '--unattended' only");
    row("mistype without unattended", "--mistype 1", "'--mistype' goes with");
    row("mistype no number", "--unattended --test p --device 0 --listen x --mistype -1", "not '-1'");
    row("unknown language", "--language de", "unknown language 'de' (known: pt_BR, en_US");
    row("unknown language and version", "--language xx --version", "unknown language 'xx'");
    row("language and config", "--language de_DE --config .", "exclude each other");
    row("no such folder", "--config no/such/folder", "'no/such/folder' is no folder");
    row("folder without settings", "--config /", "there is no config.ini in '/'");
    row("event without moment", "--simulate-event 3", "'3' is no event");
    row("event bit too high", "--simulate-event 32@1", "'32@1' is no event");
    row("event of words", "--simulate-event a@b", "'a@b' is no event");
    row("event with too much", "--simulate-event 1@2@3", "'1@2@3' is no event");
    row("stop at no number", "--stop-after soon", "not 'soon'");
    row("stop too late to count", "--stop-after 99999999999", "not '99999999999'");
    row("missing value", "--language", "missing value");
}

void TestHostOptions::refusesWhatItCannotDo()
{
    QFETCH(const QString, line);
    QFETCH(const QString, part);
    const auto result = read(line);
    const auto *error = std::get_if<host::OptionsError>(&result);
    QVERIFY(error != nullptr);
    QVERIFY2(error->message.contains(part), qPrintable(error->message));
    QVERIFY(error->message.endsWith(QStringLiteral("(try --help)")) || error->message.contains(QStringLiteral("--config")));
    QVERIFY(!error->message.contains(u'\n'));
}

void TestHostOptions::explainsEveryOption()
{
    const QString help = host::optionsHelp();
    for (const char *option : {"unattended", "test", "device", "listen", "report", "language", "screenshots", "config",
                               "mistype", "simulate-event", "stop-after", "developer", "help", "version"})
        QVERIFY2(help.contains(QStringLiteral("  --") + QLatin1String(option)), option);
    const QStringList lines = help.split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 110, qPrintable(line));
}

// "TamrexDiagnostics --print-manual" and "--print-completion" make them anew.
void TestHostOptions::shipsTheManualOfItsOptions() { QCOMPARE(shipped("1"), host::manualOfHost()); }

void TestHostOptions::tellsInTheManualWhatEachOptionIs()
{
    const QString manual =
        shipped("1").remove(QStringLiteral("\\fB")).remove(QStringLiteral("\\fI")).remove(QStringLiteral("\\fR"));
    const QStringList entries = QString(manual).remove(u'\\').split(QStringLiteral(".TP\n"));
    for (const host::OptionOfHost &option : host::optionsOfHost()) {
        const QString value = option.value == nullptr ? QString() : u' ' + QLatin1String(option.value);
        const QString entry =
            QStringLiteral("--%1%2\n%3\n").arg(QLatin1String(option.name), value, QLatin1String(option.explanation));
        const auto found =
            std::count_if(entries.begin(), entries.end(), [&entry](const QString &any) { return any.startsWith(entry); });
        QVERIFY2(found == 1, option.name);
    }
}

void TestHostOptions::tellsInTheManualEveryExitCode()
{
    const QString codes = shipped("1").section(QStringLiteral(".SH EXIT STATUS"), 1).section(QStringLiteral(".SH"), 0, 0);
    for (const int code :
         {0, 1, 2, 3, 4, 6, host::InterruptWatcher::interruptedExitCode, host::InterruptWatcher::terminatedExitCode})
        QVERIFY2(codes.contains(QStringLiteral("\\fB%1\\fR\n").arg(code)), qPrintable(QString::number(code)));
}

void TestHostOptions::shipsTheCompletionOfItsOptions() { QCOMPARE(shipped("bash"), host::completionOfHost()); }

QTEST_GUILESS_MAIN(TestHostOptions)
#include "tst_host_options.moc"
