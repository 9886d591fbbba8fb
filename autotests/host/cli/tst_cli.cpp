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

const QByteArray moduleHelp = "Audio Module help:\n"
                              "  Usage: TamrexDiagnosticsCLI -Maudio [diagnostic]\"[test(s)]\" [device id(s)]\n"
                              "  Diagnostics:\n"
                              "\t-Q, --quick\tRuns all test(s) of Audio diagnostic\n"
                              "\t-Q\"[test(s)]\", --quick=\"[test(s)]\"\tRuns chosen test(s) of Audio diagnostic\n"
                              "\n"
                              "  Tests:\n"
                              "\tp, audio_playback_test                   Audio Playback Test*\n"
                              "\n"
                              "\tm, microphone_interactive_test           Microphone Interactive Test*\n"
                              "\n"
                              "\n"
                              "   * Test not supported on CLI\n";

// The card that this test runs with.
const QStringList cardDevices{QStringLiteral("Kopfh\u00F6rer \u8033"), QStringLiteral("Speakers"),
                              QStringLiteral("Speakers (2)")};

// The order is the sound system's, and Wine adds an endpoint of its own for the server's default device.
QStringList ofTheCard(QStringList names)
{
    names.removeOne(QStringLiteral("PulseAudio"));
    names.sort();
    return names;
}

QStringList words(const QString &line) { return line.split(u' ', Qt::SkipEmptyParts); }

QJsonObject parsed(const QByteArray &output)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(output, &error); // refuses anything behind the document
    return error.error == QJsonParseError::NoError ? document.object() : QJsonObject{};
}

QStringList propertyKeys(const QJsonObject &device)
{
    QStringList keys;
    for (const QJsonValue entry : device.value(QLatin1String("properties")).toArray())
        keys.append(entry[QLatin1String("key")].toString());
    return keys;
}

QString propertyValue(const QJsonObject &device, const QString &key)
{
    for (const QJsonValue entry : device.value(QLatin1String("properties")).toArray()) {
        if (entry[QLatin1String("key")].toString() == key)
            return entry[QLatin1String("value")].toString();
    }
    return {};
}

bool isOneLine(const QByteArray &text) { return text.count('\n') == 1 && text.endsWith('\n') && !text.contains('\r'); }

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// One frame of silence: 8000 frames per second, one channel of 16 bits.
QByteArray telephoneClip()
{
    return QByteArray("RIFF\x26\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1F\0\0\x80\x3E\0\0\x02\0\x10\0data\x02\0\0\0\0\0", 46);
}

/// The program and its libraries without the clips.
bool copyBundle(const QString &folder)
{
    const QDir bundle(bundleFolder());
    for (const QString &name : bundle.entryList(QDir::Files)) {
        if (!QFile::copy(bundle.filePath(name), QDir(folder).filePath(name)))
            return false;
    }
    return true;
}

bool copyProgramOnly(const QString &folder)
{
    const QDir bundle(bundleFolder());
    for (const QString &name : bundle.entryList({QStringLiteral("TamrexDiagnosticsCLI*")}, QDir::Files)) {
        if (!QFile::copy(bundle.filePath(name), QDir(folder).filePath(name)))
            return false;
    }
    return true;
}

} // namespace

class TestCli : public QObject {
    Q_OBJECT

private slots:
    void printsTheModulesHelpUnchanged_data();
    void printsTheModulesHelpUnchanged();
    void refusesInteractiveTests_data();
    void refusesInteractiveTests();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void listsDevicesAsOneJsonDocument();
    void listsInputs();
    void listsDevicesAsATable();
    void needsNoDisplay();
    void readsTheConfigurationOfTheNamedFolder();
    void informsAsText();
    void informsAsJson();
    void printsVersions();
    void printsHelp();
    void saysThatTheModuleIsMissing();
};

void TestCli::printsTheModulesHelpUnchanged_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList{QStringLiteral("-Maudio")};
    QTest::newRow("help") << QStringList{QStringLiteral("-Maudio"), QStringLiteral("help")};
}

void TestCli::printsTheModulesHelpUnchanged()
{
    QFETCH(QStringList, arguments);
    const CliRun run = runCli(arguments);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output, moduleHelp);
    QCOMPARE(run.code, 0);
}

void TestCli::refusesInteractiveTests_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("names");
    const QByteArray both = "audio_playback_test, microphone_interactive_test";
    QTest::newRow("all") << QStringList{QStringLiteral("-Q")} << both;
    QTest::newRow("letter") << QStringList{QStringLiteral("-Qp")} << QByteArray("audio_playback_test");
    QTest::newRow("quotation marks kept") << QStringList{QStringLiteral("-Q\"m\"")}
                                          << QByteArray("microphone_interactive_test");
    QTest::newRow("long, by name") << QStringList{QStringLiteral("--quick=audio_playback_test")}
                                   << QByteArray("audio_playback_test");
    QTest::newRow("device by number") << QStringList{QStringLiteral("-Q"), QStringLiteral("0")} << both;
    QTest::newRow("devices by name") << QStringList{QStringLiteral("-Q"), cardDevices[0], cardDevices[2]} << both;
}

void TestCli::refusesInteractiveTests()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, names);
    const CliRun run = runCli(QStringList{QStringLiteral("-Maudio")} + arguments);
    QCOMPARE(run.errors, "TamrexDiagnosticsCLI: not supported on the command line: " + names + " (use the graphical host)\n");
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.code, 3);
}

void TestCli::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto add = [](const char *row, const QStringList &arguments, const QByteArray &complaint) {
        QTest::newRow(row) << arguments << complaint;
    };
    add("unknown option", {QStringLiteral("--x")}, "unknown option '--x' (try --help)");
    add("unknown command", {QStringLiteral("play")}, "unknown command 'play' (try --help)");
    add("unknown module", {QStringLiteral("-Mvideo")}, "unknown module 'video' (known: -Maudio)");
    add("no module", {QStringLiteral("-M")}, "unknown module '' (known: -Maudio)");
    add("unknown diagnostic", {QStringLiteral("-Maudio"), QStringLiteral("-X")},
        "unknown diagnostic '-X' (known: -Q, --quick) (try -Maudio help)");
    add("unknown test", {QStringLiteral("-Maudio"), QStringLiteral("-Qx")},
        "unknown test 'x' (known: p, audio_playback_test, m, microphone_interactive_test) (try -Maudio help)");
    add("unknown device", {QStringLiteral("-Maudio"), QStringLiteral("-Q"), QStringLiteral("0"), QStringLiteral("7")},
        "unknown device '7' (list shows them)");
    add("no such folder", {QStringLiteral("list"), QStringLiteral("--config"), QStringLiteral("no such folder")},
        "'no such folder' is not a folder that can be used (--config)");
    add("control characters", {QStringLiteral("a\x1b[31m\n")}, "unknown command 'a\\x1b[31m\\x0a' (try --help)");
}

void TestCli::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const CliRun run = runCli(arguments);
    QCOMPARE(run.errors, "TamrexDiagnosticsCLI: " + complaint + "\n");
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.code, 2);
}

void TestCli::listsDevicesAsOneJsonDocument()
{
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    QCOMPARE(run.errors, QByteArray()); // no progress where nobody watches
    QCOMPARE(run.code, 0);
    QVERIFY(!run.output.contains('\r'));
    const QJsonObject document = parsed(run.output);
    QCOMPARE(document.value(QLatin1String("schemaVersion")).toInt(), 1);
    QCOMPARE(document.value(QLatin1String("productVersion")).toString(), QStringLiteral("4.42.0.92"));

    int defaultCount = 0;
    QStringList names;
    const QJsonArray devices = document.value(QLatin1String("devices")).toArray();
    for (qsizetype number = 0; number < devices.size(); ++number) {
        const QJsonObject device = devices[number].toObject();
        const QString name = device.value(QLatin1String("name")).toString();
        names.append(name);
        const QStringList keys{QStringLiteral("UDI"), QStringLiteral("NUMBER_OF_CHANNELS"), QStringLiteral("SAMPLE_RATE"),
                               QStringLiteral("DRIVER_NAME")};
        QCOMPARE(propertyKeys(device).first(4), keys);
        QCOMPARE(propertyValue(device, QStringLiteral("UDI")), name);
        QCOMPARE(propertyValue(device, QStringLiteral("SAMPLE_RATE")), QStringLiteral("48000"));
        QCOMPARE(device.value(QLatin1String("number")).toInteger(-1), number);
        QCOMPARE(device.value(QLatin1String("id")).toString(), name);
        QVERIFY(device.value(QLatin1String("virtual")).toBool()); // null sinks, and under Wine whatever there is
        QCOMPARE(device.value(QLatin1String("numberOfChannels")).toInt(), 2);
        QCOMPARE(device.value(QLatin1String("sampleRate")).toInt(), 48000);
        QCOMPARE(device.value(QLatin1String("driverName")).toString(), propertyValue(device, QStringLiteral("DRIVER_NAME")));
        QVERIFY(!device.value(QLatin1String("driverName")).toString().isEmpty());
        QVERIFY(device.value(QLatin1String("volumePercent")).isDouble());
        QVERIFY(device.value(QLatin1String("muted")).isBool());
        defaultCount += device.value(QLatin1String("default")).toBool() ? 1 : 0;
    }
    QCOMPARE(defaultCount, 1);
    QVERIFY(document.value(QLatin1String("soundServerAnswers")).toBool());
    QCOMPARE(ofTheCard(names), cardDevices);
}

// As the dialog of the microphone test lists them; monitors are marked.
void TestCli::listsInputs()
{
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json")});
    const QJsonArray inputs = parsed(run.output).value(QLatin1String("inputs")).toArray();
    QStringList names;
    for (const QJsonValue input : inputs) {
        if (!input[QLatin1String("monitor")].toBool())
            names.append(input[QLatin1String("name")].toString());
        QVERIFY(!input[QLatin1String("id")].toString().isEmpty());
        QVERIFY(input[QLatin1String("virtual")].toBool());
    }
    QVERIFY2(names.contains(QStringLiteral("Desk Mic")) && names.contains(QStringLiteral("Desk Mic (2)")),
             qPrintable(names.join(u'\n')));
#ifndef Q_OS_WIN // Wine takes monitors for microphones
    QCOMPARE(names.size(), 2);
#endif
}

void TestCli::listsDevicesAsATable()
{
    const CliRun run = runCli({QStringLiteral("list")});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.code, 0);
    QVERIFY(!run.output.contains('\x1b'));
    QVERIFY(!run.output.contains('\r'));
    const QStringList lines = QString::fromUtf8(run.output).split(u'\n');
    QVERIFY(lines.last().isEmpty()); // the output ends with a line end
    QCOMPARE(words(lines.first()).join(u' '),
             QStringLiteral("No Direction Device Channels Sample rate Driver Driver version Virtual Volume Muted Default"));
    const qsizetype column = lines.first().indexOf(QStringLiteral("Channels"));
    const qsizetype nameColumn = lines.first().indexOf(QStringLiteral("Device"));
    QStringList names;
    QStringList inputs;
    for (const QString &line : lines.mid(1, lines.size() - 2)) {
        const bool hasWideCharacter = line.contains(QChar(u'\u8033'));
        const bool isInput = words(line).value(1) != QLatin1String("output");
        const QString unknown = QStringLiteral("-");
        QCOMPARE(words(line.mid(column - (hasWideCharacter ? 1 : 0))).mid(0, 2),
                 isInput ? (QStringList{unknown, unknown}) : (QStringList{QStringLiteral("2"), QStringLiteral("48000")}));
        (isInput ? inputs : names).append(line.left(column - (hasWideCharacter ? 1 : 0)).mid(nameColumn).trimmed());
        QCOMPARE(words(line).first() == unknown, isInput); // no test takes an input's number
    }
    QCOMPARE(ofTheCard(names), cardDevices);
    QVERIFY2(inputs.contains(QStringLiteral("Desk Mic")), run.output.constData());
}

// The module has dialogs, but a window system that cannot be had is none of this program's business.
void TestCli::needsNoDisplay()
{
    QProcessEnvironment environment = cliEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none-such"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("DISPLAY"));
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json")}, environment);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.code, 0);
    QVERIFY(!parsed(run.output).isEmpty());
}

void TestCli::readsTheConfigurationOfTheNamedFolder()
{
    const QTemporaryDir folder;
    QVERIFY(copyBundle(folder.path()));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("audio_files/de_DE")));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("settings")));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("audio_files/de_DE/0_de_DE.wav")), telephoneClip()));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("settings/config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=German\n"));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=French\n"));

    const QString settings = folder.filePath(QStringLiteral("settings"));
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json"), QStringLiteral("--config"), settings},
                              cliEnvironment(), cliPath(folder.path()));
    QCOMPARE(run.code, 0);
    const QJsonArray devices = parsed(run.output).value(QLatin1String("devices")).toArray();
    QVERIFY(devices.size() >= cardDevices.size());
    QCOMPARE(devices[0].toObject().value(QLatin1String("sampleRate")).toInt(), 8000); // of the German clip

    const CliRun elsewhere =
        runCli({QStringLiteral("list"), QStringLiteral("--json")}, cliEnvironment(), cliPath(folder.path()), folder.path());
    QVERIFY(elsewhere.output.contains("\"sampleRate\": 22050")); // of the built-in sound
}

void TestCli::informsAsText()
{
    const CliRun run = runCli({QStringLiteral("info")});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.code, 0);
    QVERIFY(run.output.startsWith("Product version  4.42.0.92\nHost version     "));
    QVERIFY(run.output.endsWith("Diagnostic -Q, --quick\n"
                                "  name key         QUICK_AUDIO\n"
                                "  description key  QUICK_AUDIO_TESTS_TOOLTIP\n"
                                "  Test p, audio_playback_test\n"
                                "    name key         AUDIO_PLAYBACK_TEST\n"
                                "    description key  AUDIO_PLAYBACK_TEST_DESCRIPTION\n"
                                "  Test m, microphone_interactive_test\n"
                                "    name key         MICROPHONE_INTERACTIVE_TEST\n"
                                "    description key  MICROPHONE_INTERACTIVE_TEST_DESCRIPTION\n"));
}

void TestCli::informsAsJson()
{
    const CliRun run = runCli({QStringLiteral("info"), QStringLiteral("--json")});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.code, 0);
    const QJsonObject document = parsed(run.output);
    QCOMPARE(document.value(QLatin1String("productVersion")).toString(), QStringLiteral("4.42.0.92"));
    const QJsonArray diagnostics = document.value(QLatin1String("diagnostics")).toArray();
    QCOMPARE(diagnostics.size(), 1);
    const QJsonObject diagnostic = diagnostics[0].toObject();
    QCOMPARE(diagnostic.value(QLatin1String("nameKey")).toString(), QStringLiteral("QUICK_AUDIO"));
    const QJsonObject test = diagnostic.value(QLatin1String("tests"))[1].toObject();
    const QJsonObject identity{{QLatin1String("module"), 15}, {QLatin1String("category"), 1}, {QLatin1String("index"), 2}};
    QCOMPARE(test.value(QLatin1String("id")).toObject(), identity);
    QCOMPARE(test.value(QLatin1String("commandLineNames")).toArray(),
             (QJsonArray{QStringLiteral("m"), QStringLiteral("microphone_interactive_test")}));
}

void TestCli::printsVersions()
{
    const CliRun run = runCli({QStringLiteral("--version")});
    QCOMPARE(run.errors, QByteArray());
    QVERIFY2(run.output.startsWith("TamrexDiagnosticsCLI 4.42.0.92\nhost "), run.output.constData());
    QCOMPARE(run.code, 0);
}

void TestCli::printsHelp()
{
    const CliRun help = runCli({QStringLiteral("--help")});
    QCOMPARE(help.code, 0);
    QCOMPARE(help.errors, QByteArray());
    for (const char *word : {"list", "info", "--json", "--config", "--version", "NO_COLOR", "Examples:", "Exit codes:"})
        QVERIFY2(help.output.contains(word), word);

    const CliRun nothing = runCli({});
    QCOMPARE(nothing.code, 2);
    QCOMPARE(nothing.output, QByteArray());
    QVERIFY(nothing.errors.startsWith("Usage: TamrexDiagnosticsCLI "));
}

void TestCli::saysThatTheModuleIsMissing()
{
    const QTemporaryDir folder;
    QVERIFY(copyProgramOnly(folder.path()));
    const QString program = cliPath(folder.path());
    // Where the real module lies must not matter, not even as current folder.
    const CliRun run = runCli({QStringLiteral("list"), QStringLiteral("--json")}, cliEnvironment(), program, bundleFolder());
    QCOMPARE(run.code, 6);
    QVERIFY2(isOneLine(run.errors), run.errors.constData());
    QVERIFY(run.errors.startsWith("TamrexDiagnosticsCLI: the module '"));
    QCOMPARE(parsed(run.output).value(QLatin1String("error"))[QLatin1String("code")].toInt(), 6);

    const CliRun version = runCli({QStringLiteral("--version")}, cliEnvironment(), program, bundleFolder());
    QCOMPARE(version.code, 6);
    QVERIFY(version.output.startsWith("host "));
    QCOMPARE(runCli({QStringLiteral("-Maudio")}, cliEnvironment(), program).code, 6);
    QCOMPARE(runCli({QStringLiteral("--help")}, cliEnvironment(), program).code, 0);
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
