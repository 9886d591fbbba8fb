// SPDX-License-Identifier: Apache-2.0
#include "utils/config_reader.h"
#include "utils/utf8_text.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QScopeGuard>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <locale>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace ostra::utils;
using namespace std::string_literals;
using namespace std::string_view_literals;

using Keys = std::map<std::string, std::string>;

Q_DECLARE_METATYPE(IniConfiguration)

namespace {

ConfigParseResult good() { return {true, 0, -1, "", ""}; }

ConfigParseResult rejectedAt(std::int32_t line, std::uint32_t code) { return {true, code, line, "", ""}; }

} // namespace

class TestConfigReader : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void readsSectionsAndKeys();
    void upperCasesNamesAndKeepsValues();
    void storesByTable_data();
    void storesByTable();
    void keysBeforeTheFirstHeaderLandInTheEmptySection();
    void ordersNamesByteByByte();

    void missingFileIsNoErrorAndLeavesTheTableEmpty();
    void emptyNameIsAMissingFile();
    void directoryIsNotRead();
    void endlessDeviceIsNotRead();
    void emptyFileAddsTheEmptySection();
    void opensFilesWithNonAsciiNames();
    void relativeNameFollowsTheCurrentDirectory();
    void fillsATableThatAlreadyHoldsSections();

    void rejectsTheSecondHeaderOfASection();
    void rejectsARepeatedKey();
    void acceptsOneKeyInTwoSections();
    void stopsAtTheFirstRejectedLineAndKeepsTheRest();
    void countsEveryPhysicalLine();

    void dropsByteOrderMarkBeforeABlankOrCommentLine_data();
    void dropsByteOrderMarkBeforeABlankOrCommentLine();
    void secondByteOrderMarkIsText();
    void replacesMalformedUtf8_data();
    void replacesMalformedUtf8();
    void knowsPlainTextByEachByteAtEachPlace();
    void decodesLikeATextStream();
    void ignoresTheLocale();

    void valueLookupNeedsTheExactName();

private:
    QString path(const QString &name) const { return folder_->filePath(name); }
    void write(const std::string &content, const QString &name = QStringLiteral("config.ini")) const;
    ConfigParseResult read(const std::string &content, IniConfiguration &configuration) const;

    std::unique_ptr<QTemporaryDir> folder_;
};

void TestConfigReader::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
}

void TestConfigReader::cleanup() { folder_.reset(); }

void TestConfigReader::write(const std::string &content, const QString &name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content.data(), static_cast<qint64>(content.size())), static_cast<qint64>(content.size()));
}

ConfigParseResult TestConfigReader::read(const std::string &content, IniConfiguration &configuration) const
{
    write(content);
    return readConfigFile(path(QStringLiteral("config.ini")).toStdString(), configuration);
}

void TestConfigReader::readsSectionsAndKeys()
{
    IniConfiguration table;
    const std::string content = "; product settings\n\n[GLOBAL]\nRUN_TIMES=3\n\n[LANGUAGE] ; one\nDEFAULT_LANGUAGE=french\n";
    QCOMPARE(read(content, table), good());
    QCOMPARE(table,
             (IniConfiguration{{"", {}}, {"GLOBAL", {{"RUN_TIMES", "3"}}}, {"LANGUAGE", {{"DEFAULT_LANGUAGE", "french"}}}}));
}

void TestConfigReader::upperCasesNamesAndKeepsValues()
{
    IniConfiguration table;
    QCOMPARE(read("[Language]\nDefault_Language=FrEnCh\n", table), good());
    QCOMPARE(getConfigValue(table, "LANGUAGE", "DEFAULT_LANGUAGE"), std::string("FrEnCh"));
}

void TestConfigReader::storesByTable_data()
{
    QTest::addColumn<std::string>("content");
    QTest::addColumn<IniConfiguration>("table");
    const auto add = [](const char *row, const std::string &content, const IniConfiguration &table) {
        QTest::newRow(row) << content << table;
    };
    const auto keys = [](const Keys &pairs) { return IniConfiguration{{"", pairs}}; };
    add("CRLF", "[A]\r\nK=V\r\n", {{"", {}}, {"A", {{"K", "V"}}}});
    add("lone CR", "K=V\rW\r", keys({{"K", "VW"}}));
    add("CR only is one line", "K=V\r-L=W", keys({{"K", "V-L=W"}}));
    add("no line end at the end", "K=V", keys({{"K", "V"}}));
    add("Ctrl-Z is an ordinary character",
        "K=a\x1A"
        "b\nL=W\n",
        keys({{"K", "a\x1A"
                    "b"},
              {"L", "W"}}));
    add("NUL stays in the value", "K=a\0b\nL=\0\n"s, keys({{"K", "a\0b"s}, {"L", "\0"s}}));
    add("comment leaves the blank before it", "K = V ;my choice\n", keys({{"K", "V "}}));
    add("no quoting", "K=\"a;b\"\n", keys({{"K", "\"a"}}));
    add("value of one blank", " K= \n", keys({{"K", " "}}));
    add("key without value behind a blank is ignored", " K=\n", keys({}));
    add("section of a star", "[*]\n", {{"", {}}, {"*", {}}});
    add("blanks in a section name", "[ LANGUAGE ]\nK=V\n", {{"", {}}, {" LANGUAGE ", {{"K", "V"}}}});
    add("header behind text", "//[A]\nK=V\n", {{"", {}}, {"A", {{"K", "V"}}}});
    add("header inside a value", "K = [A]\nL=W\n", {{"", {}}, {"A", {{"L", "W"}}}});
    add("unclosed header with a blank is ignored", "[ LANGUAGE\nLANGUAGE ]\nK=V\n", keys({{"K", "V"}}));
    add("prefix before a key", "X-DEFAULT_LANGUAGE=french\nMY-KEY=1\n", keys({{"DEFAULT_LANGUAGE", "french"}, {"KEY", "1"}}));
    add("key cut at a non-ASCII letter", "na\xC3\xAFve=1\n", keys({{"VE", "1"}}));
    add("Cyrillic key is ignored", "\xD1\x8F\xD0\xB7=1\n", keys({}));
    add("byte order mark", "\xEF\xBB\xBFK=V\n", keys({{"K", "V"}}));
    add("byte order mark behind a CR stays", "\r\xEF\xBB\xBFK=\xEF\xBB\xBFV\n", keys({{"K", "\xEF\xBB\xBFV"}}));
    add("CR inside a sequence of bytes", "K=\xC3\r\xA9\n", keys({{"K", "\xEF\xBF\xBD\xEF\xBF\xBD"}}));
    add("byte order mark inside a value stays", "K=V\nL=\xEF\xBB\xBFW", keys({{"K", "V"}, {"L", "\xEF\xBB\xBFW"}}));
}

void TestConfigReader::storesByTable()
{
    QFETCH(std::string, content);
    QFETCH(IniConfiguration, table);
    IniConfiguration result;
    QCOMPARE(read(content, result), good());
    QCOMPARE(result, table);
}

void TestConfigReader::keysBeforeTheFirstHeaderLandInTheEmptySection()
{
    IniConfiguration table;
    QCOMPARE(read("DEFAULT_LANGUAGE=french\n[LANGUAGE]\n", table), good());
    QCOMPARE(getConfigValue(table, "", "DEFAULT_LANGUAGE"), std::string("french"));
    QCOMPARE(getConfigValue(table, "LANGUAGE", "DEFAULT_LANGUAGE"), std::string());
}

void TestConfigReader::ordersNamesByteByByte()
{
    IniConfiguration table;
    QCOMPARE(read("[_]\n[b]\n[A]\n[0]\n[A B]\n[*]\n", table), good());
    std::vector<std::string> names;
    for (const auto &[name, keys] : table)
        names.push_back(name);
    QCOMPARE(names, (std::vector<std::string>{"", "*", "0", "A", "A B", "B", "_"}));
}

void TestConfigReader::missingFileIsNoErrorAndLeavesTheTableEmpty()
{
    IniConfiguration table;
    const ConfigParseResult result = readConfigFile(path(QStringLiteral("none.ini")).toStdString(), table);
    QCOMPARE(result, (ConfigParseResult{false, 0, -1, "", ""}));
    QVERIFY(!result.isError());
    QVERIFY(table.empty());
}

void TestConfigReader::emptyNameIsAMissingFile()
{
    IniConfiguration table;
    QCOMPARE(readConfigFile("", table), ConfigParseResult());
    QVERIFY(table.empty());
}

void TestConfigReader::endlessDeviceIsNotRead()
{
    if (QDir::separator() == u'\\')
        QSKIP("no such device here");
    IniConfiguration configuration;
    QVERIFY(QFile::exists(QStringLiteral("/dev/zero")));
    QVERIFY(!readConfigFile("/dev/zero", configuration).fileRead);
    QVERIFY(configuration.empty());
}

void TestConfigReader::directoryIsNotRead()
{
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("config.ini")));
    IniConfiguration table;
    const ConfigParseResult result = readConfigFile(path(QStringLiteral("config.ini")).toStdString(), table);
    QCOMPARE(result, (ConfigParseResult{false, 0, -1, "", ""}));
    QVERIFY(table.empty());
}

void TestConfigReader::emptyFileAddsTheEmptySection()
{
    IniConfiguration table;
    QCOMPARE(read("", table), good());
    QCOMPARE(table, (IniConfiguration{{"", {}}}));
}

void TestConfigReader::opensFilesWithNonAsciiNames()
{
    const QString name = QStringLiteral("Pr\u00FCfung-\u30B9\u30D4.ini");
    write("K=V\n", name);
    IniConfiguration table;
    QCOMPARE(readConfigFile(path(name).toStdString(), table), good());
    QCOMPARE(table, (IniConfiguration{{"", {{"K", "V"}}}}));
}

void TestConfigReader::relativeNameFollowsTheCurrentDirectory()
{
    const QString previous = QDir::currentPath();
    const auto restore = qScopeGuard([&previous] { QDir::setCurrent(previous); });
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("other")));
    write("K=1\n");
    write("K=2\n", QStringLiteral("other/config.ini"));
    const QString other = path(QStringLiteral("other"));
    for (const auto &[directory, value] : {std::pair(folder_->path(), "1"), std::pair(other, "2")}) {
        QVERIFY(QDir::setCurrent(directory));
        IniConfiguration table;
        QCOMPARE(readConfigFile("config.ini", table), good());
        QCOMPARE(getConfigValue(table, "", "K"), std::string(value));
    }
}

void TestConfigReader::fillsATableThatAlreadyHoldsSections()
{
    IniConfiguration table{{"", {{"K", "old"}}}, {"B", {}}};
    QCOMPARE(read("L=new\n[A]\n[B]\n", table), (ConfigParseResult{true, 1, 3, "", "B"}));
    QCOMPARE(table, (IniConfiguration{{"", {{"K", "old"}, {"L", "new"}}}, {"A", {}}, {"B", {}}}));
}

void TestConfigReader::rejectsTheSecondHeaderOfASection()
{
    IniConfiguration table;
    QCOMPARE(read("[LANGUAGE]\nK=1\n[B]\n[Language]\nL=2\n", table), (ConfigParseResult{true, 1, 4, "", "LANGUAGE"}));
    QCOMPARE(table, (IniConfiguration{{"", {}}, {"B", {}}, {"LANGUAGE", {{"K", "1"}}}}));
}

void TestConfigReader::rejectsARepeatedKey()
{
    IniConfiguration table;
    QCOMPARE(read("[a]\nkey=1\nKey=2\nL=3\n", table), (ConfigParseResult{true, 2, 3, "KEY", "A"}));
    QCOMPARE(table, (IniConfiguration{{"", {}}, {"A", {{"KEY", "1"}}}}));
    table.clear();
    QCOMPARE(read("K=1\nK=2\n", table), (ConfigParseResult{true, 2, 2, "K", ""}));
}

void TestConfigReader::acceptsOneKeyInTwoSections()
{
    IniConfiguration table;
    QCOMPARE(read("K=0\n[A]\nK=1\n[B]\nK=2\n", table), good());
    QCOMPARE(table, (IniConfiguration{{"", {{"K", "0"}}}, {"A", {{"K", "1"}}}, {"B", {{"K", "2"}}}}));
}

void TestConfigReader::stopsAtTheFirstRejectedLineAndKeepsTheRest()
{
    IniConfiguration table;
    QCOMPARE(read("K=1\n[A]\nL=2\n[LANGUAGE\nM=3\n", table), rejectedAt(4, 1007));
    QCOMPARE(table, (IniConfiguration{{"", {{"K", "1"}}}, {"A", {{"L", "2"}}}}));
}

void TestConfigReader::countsEveryPhysicalLine()
{
    IniConfiguration table;
    QCOMPARE(read("\n; comment [\n  \t\n\r\n ;\nplain words\n", table), rejectedAt(6, 1010));
    table.clear();
    QCOMPARE(read("plain words ; K=V", table), rejectedAt(1, 1010));
}

void TestConfigReader::dropsByteOrderMarkBeforeABlankOrCommentLine_data()
{
    QTest::addColumn<std::string>("firstLine");
    QTest::newRow("blank") << std::string();
    QTest::newRow("comment") << std::string("; settings");
}

void TestConfigReader::dropsByteOrderMarkBeforeABlankOrCommentLine()
{
    QFETCH(std::string, firstLine);
    IniConfiguration table;
    QCOMPARE(read("\xEF\xBB\xBF" + firstLine + "\r\nK=V\r\n", table), good());
    QCOMPARE(table, (IniConfiguration{{"", {{"K", "V"}}}}));
}

void TestConfigReader::secondByteOrderMarkIsText()
{
    IniConfiguration table;
    QCOMPARE(read("\xEF\xBB\xBF\xEF\xBB\xBF\nK=V\n", table), rejectedAt(1, 1010));
}

void TestConfigReader::replacesMalformedUtf8_data()
{
    QTest::addColumn<std::string>("value");
    QTest::newRow("stray continuation") << std::string("a\x80z");
    QTest::newRow("cut two-byte sequence") << std::string("a\xC3z");
    QTest::newRow("cut three-byte sequence") << std::string("a\xE2\x82z");
    QTest::newRow("cut four-byte sequence") << std::string("a\xF0\x9F\x98z");
    QTest::newRow("cut at the end of the file") << std::string("a\xF0\x9F\x98");
    QTest::newRow("overlong NUL") << std::string("a\xC0\x80z");
    QTest::newRow("overlong solidus") << std::string("a\xE0\x80\xAFz");
    QTest::newRow("overlong four bytes") << std::string("a\xF0\x80\x80\xAFz");
    QTest::newRow("surrogate") << std::string("a\xED\xA0\x80z");
    QTest::newRow("above the last code point") << std::string("a\xF4\x90\x80\x80z");
    QTest::newRow("bytes of no sequence") << std::string("a\xF5\xFE\xFFz");
    QTest::newRow("Latin-1 text") << std::string("fran\xE7"
                                                 "ais");
}

void TestConfigReader::replacesMalformedUtf8()
{
    QFETCH(std::string, value);
    IniConfiguration table;
    QCOMPARE(read("K=" + value, table), good());
    const std::string expected = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size())).toStdString();
    QVERIFY(expected != value);
    QCOMPARE(getConfigValue(table, "", "K"), expected);
    QVERIFY(!isUtf8(value));
    QVERIFY(isUtf8(expected));
}

void TestConfigReader::knowsPlainTextByEachByteAtEachPlace()
{
    for (std::size_t length = 0; length < 20; ++length) { // two blocks of eight bytes and a rest
        for (const char other : {'\0', 'a', '\x0C', '\x7F'}) {
            const std::string text(length + 1, other);
            QVERIFY(isAsciiWithoutCarriageReturn(std::string_view(text).substr(1)));
            for (std::size_t at = 0; at < length; ++at) {
                for (int value = 0; value < 256; ++value) {
                    std::string changed = text;
                    changed[at + 1] = static_cast<char>(value);
                    const bool isPlain = value < 0x80 && value != '\r';
                    QVERIFY2(isAsciiWithoutCarriageReturn(std::string_view(changed).substr(1)) == isPlain,
                             qPrintable(QStringLiteral("%1 at %2 of %3").arg(value).arg(at).arg(length)));
                }
            }
        }
    }
}

void TestConfigReader::decodesLikeATextStream()
{
    constexpr std::string_view alphabet = "a\r\n\0\x1A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xED\xA0\xEF\xBB\xBF\xFF"sv;
    std::mt19937 random(20'260'102);
    for (int round = 0; round < 500; ++round) {
        std::string value(random() % 30, ' ');
        std::generate(value.begin(), value.end(), [&] { return alphabet[random() % alphabet.size()]; });
        IniConfiguration table;
        // The trailing letter completes every sequence: a text stream loses one that the end of the file cuts.
        read("K=-" + value + "z", table);
        QFile file(path(QStringLiteral("config.ini")));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        QTextStream stream(&file);
        QCOMPARE("K=" + getConfigValue(table, "", "K"), stream.readLine().toStdString());
    }
}

void TestConfigReader::ignoresTheLocale()
{
    const std::locale previous = std::locale();
    const auto restore = qScopeGuard([&previous] {
        std::locale::global(previous);
        std::setlocale(LC_ALL, "C");
    });
    struct StrangeLetters : std::ctype<char> {
        char do_toupper(char) const override { return '#'; }
        const char *do_toupper(char *, const char *end) const override { return end; }
    };
    std::locale::global(std::locale(previous, new StrangeLetters)); // owned by the locale
    std::setlocale(LC_ALL, "");
    IniConfiguration table;
    QCOMPARE(read("[iI]\nkiI\xC3\xA9=1\niI=2\n", table), good());
    QCOMPARE(table, (IniConfiguration{{"", {}}, {"II", {{"II", "2"}}}}));
}

void TestConfigReader::valueLookupNeedsTheExactName()
{
    const IniConfiguration table{{"A", {{"K", "v"}}}};
    QCOMPARE(getConfigValue(table, "A", "K"), std::string("v"));
    QCOMPARE(getConfigValue(table, "a", "K"), std::string());
    QCOMPARE(getConfigValue(table, "A", "k"), std::string());
    QCOMPARE(getConfigValue(table, "B", "K"), std::string());
    QCOMPARE(getConfigValue({}, "", ""), std::string());
}

QTEST_GUILESS_MAIN(TestConfigReader)
#include "tst_config_reader.moc"
