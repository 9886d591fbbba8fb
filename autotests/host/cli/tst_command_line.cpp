// SPDX-License-Identifier: Apache-2.0
#include "host/cli/command_line.h"

#include <QObject>
#include <QTest>

using host::Command;
using host::CommandLine;
using host::UsageError;

Q_DECLARE_METATYPE(host::Command)

class TestCommandLine : public QObject {
    Q_OBJECT

private slots:
    void accepts_data();
    void accepts();
    void takesTheConfigurationFolder();
    void collectsRepeatedOptions();
    void knowsWhatHelpIsAbout();
    void refuses_data();
    void refuses();
};

namespace {

std::variant<CommandLine, UsageError> parse(const QString &words)
{
    return host::parseCommandLine(QStringList{QStringLiteral("program")} + words.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

void TestCommandLine::accepts_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<Command>("command");
    QTest::addColumn<bool>("isJson");
    const auto add = [](const char *words, Command command, bool isJson) {
        QTest::newRow(words) << QString::fromLatin1(words) << command << isJson;
    };
    add("", Command::none, false);
    add("list", Command::list, false);
    add("list --json", Command::list, true);
    add("--json list", Command::list, true);
    add("info", Command::info, false);
    add("info --json", Command::info, true);
    add("-h", Command::help, false);
    add("--help", Command::help, false);
    add("list --help", Command::help, false);
    add("--version", Command::version, false);
    add("--help --version", Command::help, false);
    add("--help --language xx", Command::help, false);
    add("--language de_DE --version", Command::version, false);
    add("-- list", Command::list, false);
    add("list --gnu-exit", Command::list, false);
    add("info --self-check --json", Command::info, true);
    add("run --device 0 --device 1 --test p --test m", Command::run, false);
    add("report a.json -o a.html --output a.xml", Command::report, false);
    add("clips verify --json", Command::clips, true);
    add("--print-manual", Command::manual, false);
    add("--print-completion", Command::completion, false);
}

void TestCommandLine::accepts()
{
    QFETCH(QString, words);
    const auto parsed = parse(words);
    QVERIFY(std::holds_alternative<CommandLine>(parsed));
    const auto &line = std::get<CommandLine>(parsed);
    QTEST(line.command, "command");
    QTEST(line.isJson, "isJson");
    QCOMPARE(line.configFolder, std::nullopt);
}

void TestCommandLine::takesTheConfigurationFolder()
{
    for (const char *words : {"list --config some/folder", "--config=some/folder list"}) {
        const auto parsed = parse(QString::fromLatin1(words));
        QVERIFY(std::holds_alternative<CommandLine>(parsed));
        QCOMPARE(std::get<CommandLine>(parsed).configFolder, std::optional(QStringLiteral("some/folder")));
    }
}

void TestCommandLine::collectsRepeatedOptions()
{
    const auto parsed = parse(QStringLiteral("run --device 0 --device 1 --report a.json --report b.xml --listen x --listen y"));
    const auto &line = std::get<CommandLine>(parsed);
    QCOMPARE(line.all("device"), (QStringList{QStringLiteral("0"), QStringLiteral("1")}));
    QCOMPARE(line.all("report"), (QStringList{QStringLiteral("a.json"), QStringLiteral("b.xml")}));
    QCOMPARE(line.last("listen"), QStringLiteral("y"));
    QVERIFY(line.isSet("device") && !line.isSet("allow-virtual") && !line.isGnuExit);
}

void TestCommandLine::knowsWhatHelpIsAbout()
{
    QCOMPARE(std::get<CommandLine>(parse(QStringLiteral("run --help"))).topic, QStringLiteral("run"));
    QCOMPARE(std::get<CommandLine>(parse(QStringLiteral("nonsense --help"))).topic, QString());
}

void TestCommandLine::refuses_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("message");
    const auto add = [](const char *words, const char *message, const char *topic = "") {
        QTest::newRow(words) << QString::fromLatin1(words)
                             << QStringLiteral("%1 (try %2--help)").arg(QLatin1String(message), QLatin1String(topic));
    };
    add("--x", "unknown option '--x'");
    add("-x", "unknown option '-x'");
    add("--x=1", "unknown option '--x'");
    add("list --colour", "unknown option '--colour'", "list ");
    add("list -hx", "unknown option '-x'", "list ");
    add("--json", "no command is given");
    add("play", "unknown command 'play'");
    add("List", "unknown command 'List'");
    add("list info", "unexpected argument 'info'", "list ");
    add("info --config .", "'--config' does not go with 'info'", "info ");
    add("list --self-check", "'--self-check' does not go with 'list'", "list ");
    add("run --test x", "'--test' does not know 'x' (known: p, m)", "run ");
    add("run --device 0 more", "unexpected argument 'more'", "run ");
    add("report", "'report' needs its argument: FILE", "report ");
    add("clips", "'clips' needs its argument: verify", "clips ");
    add("clips make", "'clips' does not know 'make'", "clips ");
    add("clips verify --language xx_YY",
        "'--language' does not know 'xx_YY' (known: pt_BR, en_US, es_ES, fr_FR, it_IT, de_DE, nl_NL, zh_CN, ja_JP)", "clips ");
    add("--language xx --version",
        "'--language' does not know 'xx' (known: pt_BR, en_US, es_ES, fr_FR, it_IT, de_DE, nl_NL, zh_CN, ja_JP)");
    add("list --config", "missing value after '--config'", "list ");
    add("list --json=yes", "unexpected value after '--json'", "list ");
}

void TestCommandLine::refuses()
{
    QFETCH(QString, words);
    const auto parsed = parse(words);
    QVERIFY(std::holds_alternative<UsageError>(parsed));
    QTEST(std::get<UsageError>(parsed).message, "message");
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_command_line.moc"
