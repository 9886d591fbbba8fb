// SPDX-License-Identifier: Apache-2.0
#include "host/cli/option_table.h"

#include "host/cli/exit_code.h"
#include "host/cli/help_text.h"
#include "host/cli/run_plan.h"
#include "host/translations/translators.h"

#include <QFile>
#include <QObject>
#include <QTest>

#include <array>
#include <string_view>

using host::ExitCode;

namespace {

QString shipped(const char *name)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/packaging/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestOptionTable : public QObject {
    Q_OBJECT

private slots:
    void shipsTheManualOfThisTable();
    void shipsTheCompletionOfThisTable();
    void explainsEveryCommandAndOption();
    void givesEveryCommandItsOwnHelp();
    void keepsToTheWidthOfATerminal();
    void offersTheLanguagesThatThereAre();
    void namesOnlyCommandsThatExist();
    void ordersExitCodes();
    void mapsExitCodesForBuildTools();
    void numbersReports();
};

// "TamrexDiagnosticsCLI --print-manual" and "--print-completion" make them anew.
void TestOptionTable::shipsTheManualOfThisTable() { QCOMPARE(shipped("TamrexDiagnosticsCLI.1"), host::manualPage()); }

void TestOptionTable::shipsTheCompletionOfThisTable()
{
    QCOMPARE(shipped("TamrexDiagnosticsCLI.bash"), host::bashCompletion());
}

void TestOptionTable::explainsEveryCommandAndOption()
{
    const QString help = host::helpText();
    const QString manual = QString(host::manualPage()).remove(u'\\');
    const QString completion = host::bashCompletion();
    for (const host::OptionRow &option : host::optionRows()) {
        const QString name = QStringLiteral("--") + QLatin1String(option.name);
        QVERIFY2(help.contains(name) && manual.contains(name) && completion.contains(name), option.name);
    }
    for (const host::CommandRow &command : host::commandRows())
        QVERIFY2(help.contains(QLatin1String(command.name)) && manual.contains(QLatin1String(command.name)), command.name);
}

void TestOptionTable::givesEveryCommandItsOwnHelp()
{
    for (const host::CommandRow &command : host::commandRows()) {
        const QString help = host::helpText(QLatin1String(command.name));
        QVERIFY(help.startsWith(QStringLiteral("Usage: TamrexDiagnosticsCLI ") + QLatin1String(command.name)));
        QVERIFY(help.contains(QStringLiteral("Examples:\n  TamrexDiagnosticsCLI ") + QLatin1String(command.name)));
        QVERIFY(help.contains(QStringLiteral("Exit codes:")));
        const QString options = help.section(QStringLiteral("Options:"), 1, 1).section(QStringLiteral("Examples:"), 0, 0);
        for (const host::OptionRow &option : host::optionRows())
            QCOMPARE(options.contains(QStringLiteral("--") + QLatin1String(option.name)), host::takesOption(command, option));
    }
}

void TestOptionTable::keepsToTheWidthOfATerminal()
{
    const QString help = host::helpText();
    for (const QString &line : help.left(help.indexOf(QStringLiteral("Environment:"))).split(u'\n'))
        QVERIFY2(line.size() <= 110, qPrintable(line));
    for (const host::CommandRow &command : host::commandRows()) {
        const QString topic = host::helpText(QLatin1String(command.name)).section(QStringLiteral("Examples:"), 0, 0);
        for (const QString &line : topic.split(u'\n'))
            QVERIFY2(line.size() <= 98, qPrintable(line));
    }
}

void TestOptionTable::offersTheLanguagesThatThereAre()
{
    for (const host::OptionRow &option : host::optionRows()) {
        if (option.name != std::string_view("language"))
            continue;
        QStringList known;
        for (const QLatin1StringView code : host::translationCodes)
            known.append(code);
        QCOMPARE(host::wordsOf(option.words), known);
    }
}

void TestOptionTable::namesOnlyCommandsThatExist()
{
    for (const host::OptionRow &option : host::optionRows()) {
        for (const QString &command : host::wordsOf(option.commands))
            QVERIFY2(host::findCommand(command) != nullptr, qPrintable(command));
    }
}

void TestOptionTable::ordersExitCodes()
{
    const std::array order{ExitCode::success,      ExitCode::cannotBePerformed,
                           ExitCode::notCompleted, ExitCode::noModule,
                           ExitCode::usage,        ExitCode::failed};
    for (std::size_t better = 0; better < order.size(); ++better) {
        for (std::size_t worse = better; worse < order.size(); ++worse) {
            QCOMPARE(host::worseOf(order[better], order[worse]), order[worse]);
            QCOMPARE(host::worseOf(order[worse], order[better]), order[worse]);
        }
    }
}

void TestOptionTable::mapsExitCodesForBuildTools()
{
    const std::array<std::pair<int, int>, 8> expected{
        {{0, 0}, {1, 1}, {2, 2}, {3, 77}, {4, 99}, {6, 99}, {130, 130}, {143, 143}}};
    for (const auto &[code, mapped] : expected)
        QCOMPARE(host::gnuCodeOf(static_cast<ExitCode>(code)), mapped);
}

void TestOptionTable::numbersReports()
{
    QCOMPARE(host::numberedReport(QStringLiteral("a.b/c.json"), 2), QStringLiteral("a.b/c-2.json"));
    QCOMPARE(host::numberedReport(QStringLiteral("r.HTML"), 10), QStringLiteral("r-10.HTML"));
}

QTEST_GUILESS_MAIN(TestOptionTable)
#include "tst_option_table.moc"
