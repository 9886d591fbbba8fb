// SPDX-License-Identifier: Apache-2.0
#include "host/cli/maudio_arguments.h"

#include <QObject>
#include <QStringList>
#include <QTest>

#include <string>
#include <vector>

using namespace host;

namespace {

const std::string allTests = "p, audio_playback_test, m, microphone_interactive_test";

Catalogue audioCatalogue()
{
    const CatalogueTest playback{{15, 1, 1}, {"", "", {"p", "audio_playback_test"}}};
    const CatalogueTest microphone{{15, 1, 2}, {"", "", {"m", "microphone_interactive_test"}}};
    return {{{15, 1, 0}, {"", "", {"Q", "quick"}}, {playback, microphone}}};
}

MaudioRequest parse(const QStringList &arguments, const Catalogue &catalogue = audioCatalogue())
{
    std::vector<std::string> texts;
    for (const QString &argument : arguments)
        texts.push_back(argument.toStdString());
    return parseMaudioArguments(texts, catalogue);
}

/// Letters of the chosen tests, in order; the message of an error.
QString letters(const MaudioRequest &request)
{
    if (const auto *error = std::get_if<SelectionError>(&request))
        return QString::fromStdString(error->message);
    QString text;
    if (const auto *selection = std::get_if<TestSelection>(&request)) {
        for (const CatalogueTest &test : selection->tests)
            text += QString::fromStdString(test.names.commandLineNames.front());
    }
    return text;
}

} // namespace

class TestMaudioArguments : public QObject {
    Q_OBJECT

private slots:
    void asksForHelp_data();
    void asksForHelp();
    void selectsTests_data();
    void selectsTests();
    void takesDeviceIds();
    void refuses_data();
    void refuses();
    void knowsOnlyTheCataloguesNames();
};

void TestMaudioArguments::asksForHelp_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList{};
    QTest::newRow("help") << QStringList{QStringLiteral("help")};
    QTest::newRow("--help") << QStringList{QStringLiteral("--help")};
}

void TestMaudioArguments::asksForHelp()
{
    QFETCH(QStringList, arguments);
    QVERIFY(std::holds_alternative<HelpRequest>(parse(arguments)));
}

void TestMaudioArguments::selectsTests_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("tests");
    const auto add = [](const char *argument, const char *tests) {
        QTest::newRow(argument) << QString::fromLatin1(argument) << QString::fromLatin1(tests);
    };
    add("-Q", "pm");
    add("--quick", "pm");
    add("-Qp", "p");
    add("-Qm", "m");
    add("-Qpm", "pm");
    add("-Qmp", "mp");
    add("-Qpp", "p");
    add("-Q\"p\"", "p");
    add("-Q\"pm\"", "pm");
    add("-Qp,m", "pm");
    add("-Q\"p, m\"", "pm");
    add("-Qaudio_playback_test", "p");
    add("-Qmicrophone_interactive_test,p,audio_playback_test", "mp");
    add("--quick=p", "p");
    add("--quick=\"m\"", "m");
    add("--quick=\"audio_playback_test\"", "p");
    add("--quick=microphone_interactive_test,audio_playback_test", "mp");
    add("--quick=mp,p", "mp");
}

void TestMaudioArguments::selectsTests()
{
    QFETCH(QString, argument);
    const MaudioRequest request = parse({argument});
    QVERIFY2(std::holds_alternative<TestSelection>(request), qPrintable(letters(request)));
    QTEST(letters(request), "tests");
    QVERIFY(std::get<TestSelection>(request).deviceIds.empty());
}

void TestMaudioArguments::takesDeviceIds()
{
    const QStringList ids{QStringLiteral("0"), QStringLiteral("USB Headset"), QStringLiteral("-"), QStringLiteral("help"),
                          QStringLiteral("")};
    const MaudioRequest plain = parse(QStringList{QStringLiteral("-Qp")} + ids);
    QVERIFY2(std::holds_alternative<TestSelection>(plain), qPrintable(letters(plain)));
    QCOMPARE(std::get<TestSelection>(plain).deviceIds, (std::vector<std::string>{"0", "USB Headset", "-", "help", ""}));

    const MaudioRequest dashed = parse(
        {QStringLiteral("--quick"), QStringLiteral("1"), QStringLiteral("--"), QStringLiteral("-Q"), QStringLiteral("--")});
    QVERIFY2(std::holds_alternative<TestSelection>(dashed), qPrintable(letters(dashed)));
    QCOMPARE(std::get<TestSelection>(dashed).deviceIds, (std::vector<std::string>{"1", "-Q", "--"}));
}

void TestMaudioArguments::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto add = [](const char *row, const QStringList &arguments, const std::string &message) {
        QTest::newRow(row) << arguments << QString::fromStdString(message);
    };
    const std::string known = " (known: " + allTests + ")";
    const std::string diagnostics = " (known: -Q, --quick)";
    add("unknown letter", {QStringLiteral("-X")}, "unknown diagnostic '-X'" + diagnostics);
    add("case matters", {QStringLiteral("-q")}, "unknown diagnostic '-q'" + diagnostics);
    add("longer word", {QStringLiteral("--quickly")}, "unknown diagnostic '--quickly'" + diagnostics);
    add("one dash for a long name", {QStringLiteral("-quick")}, "unknown diagnostic '-quick'" + diagnostics);
    add("two dashes for a letter", {QStringLiteral("--Q")}, "unknown diagnostic '--Q'" + diagnostics);
    add("dash alone", {QStringLiteral("-")}, "unknown diagnostic '-'" + diagnostics);
    add("device without diagnostic", {QStringLiteral("0")}, "unknown diagnostic '0'" + diagnostics);
    add("empty argument", {QStringLiteral("")}, "unknown diagnostic ''" + diagnostics);
    add("help and more", {QStringLiteral("help"), QStringLiteral("p")}, "unexpected argument 'p' after 'help'");
    add("unknown test letter", {QStringLiteral("-Qx")}, "unknown test 'x'" + known);
    add("unknown letter behind a known one", {QStringLiteral("-Qpx")}, "unknown test 'px'" + known);
    add("equals sign behind the letter", {QStringLiteral("-Q=p")}, "unknown test '=p'" + known);
    add("unknown name", {QStringLiteral("--quick=speaker_test")}, "unknown test 'speaker_test'" + known);
    add("case of a name", {QStringLiteral("--quick=Audio_Playback_Test")}, "unknown test 'Audio_Playback_Test'" + known);
    add("blank between letters", {QStringLiteral("-Qp m")}, "unknown test 'p m'" + known);
    add("nothing behind the equals sign", {QStringLiteral("--quick=")}, "a test name is missing" + known);
    add("nothing between the marks", {QStringLiteral("-Q\"\"")}, "a test name is missing" + known);
    add("comma at the end", {QStringLiteral("-Qp,")}, "a test name is missing" + known);
    add("two commas", {QStringLiteral("-Qp,,m")}, "a test name is missing" + known);
    add("only one mark", {QStringLiteral("-Q\"p")}, "misplaced quotation mark in '\"p'");
    add("a mark alone", {QStringLiteral("-Q\"")}, "misplaced quotation mark in '\"'");
    add("mark in the middle", {QStringLiteral("-Qp\"m")}, "misplaced quotation mark in 'p\"m'");
    add("two diagnostics", {QStringLiteral("-Q"), QStringLiteral("-Qp")},
        "only one diagnostic can be chosen: '-Qp' is one too many");
    add("other option", {QStringLiteral("-Q"), QStringLiteral("--json")},
        "unknown option '--json' (a device name that begins with '-' goes after --)");
}

void TestMaudioArguments::refuses()
{
    QFETCH(QStringList, arguments);
    const MaudioRequest request = parse(arguments);
    QVERIFY(std::holds_alternative<SelectionError>(request));
    QTEST(letters(request), "message");
}

void TestMaudioArguments::knowsOnlyTheCataloguesNames()
{
    QCOMPARE(letters(parse({QStringLiteral("-Q")}, {})), QStringLiteral("unknown diagnostic '-Q' (known: )"));
    const Catalogue other{{{15, 2, 0}, {"", "", {"Z", "zoom"}}, {{{15, 2, 1}, {"", "", {"z"}}}, {{15, 2, 2}, {"", "", {}}}}}};
    QCOMPARE(letters(parse({QStringLiteral("--zoom=z")}, other)), QStringLiteral("z"));
    QCOMPARE(letters(parse({QStringLiteral("-Zp")}, other)), QStringLiteral("unknown test 'p' (known: z)"));
}

QTEST_GUILESS_MAIN(TestMaudioArguments)
#include "tst_maudio_arguments.moc"
