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
    add("-- list", Command::list, false);
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

void TestCommandLine::refuses_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("message");
    const auto add = [](const char *words, const char *message) {
        QTest::newRow(words) << QString::fromLatin1(words) << QString::fromLatin1(message) + QStringLiteral(" (try --help)");
    };
    add("--x", "unknown option '--x'");
    add("-x", "unknown option '-x'");
    add("--x=1", "unknown option '--x'");
    add("list --verbose", "unknown option '--verbose'");
    add("list -hx", "unknown option '-x'");
    add("--json", "no command is given");
    add("play", "unknown command 'play'");
    add("List", "unknown command 'List'");
    add("list info", "unexpected argument 'info'");
    add("info --config .", "'--config' goes with 'list' only");
    add("list --config", "missing value after '--config'");
    add("list --json=yes", "unexpected value after '--json'");
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
