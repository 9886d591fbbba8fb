// SPDX-License-Identifier: Apache-2.0
#include "utils/ascii_text.h"
#include "utils/config_line.h"
#include "utils/config_vocabulary.h"

#include <QByteArray>
#include <QObject>
#include <QTest>

#include <cstdint>
#include <regex>
#include <string>

using namespace ostra::utils;
using namespace std::string_literals;

namespace {

QByteArray bytes(std::string_view text) { return QByteArray(text.data(), static_cast<qsizetype>(text.size())); }

void addLine(const char *name, std::string_view line, std::uint32_t code)
{
    QTest::newRow(name) << bytes(line).toStdString() << code;
}

} // namespace

class TestConfigLine : public QObject {
    Q_OBJECT

private slots:
    void rejectsOrAccepts_data();
    void rejectsOrAccepts();
    void firstCheckThatFiresDecides_data();
    void firstCheckThatFiresDecides();
    void reportsLineNumberOfARejectedLine();
    void reportsNoLineNumberForAGoodLine();
    void cutsCommentAtFirstSemicolon();
    void knowsBlankLines_data();
    void knowsBlankLines();
    void findsSectionName_data();
    void findsSectionName();
    void findsKeyAndValue_data();
    void findsKeyAndValue();
    void seesEachMarkAtEachPlace();
    void bytesAbove127BelongToNoClass();
    void caseConversionTouchesAsciiLettersOnly();
    void valuePatternsAreValidAndAnchored();
};

void TestConfigLine::rejectsOrAccepts_data()
{
    QTest::addColumn<std::string>("line");
    QTest::addColumn<std::uint32_t>("code");

    addLine("section", "[LANGUAGE]", 0);
    addLine("pair", "DEFAULT_LANGUAGE=french", 0);
    addLine("pair with blanks", "  DEFAULT_LANGUAGE \t=\v french ", 0);

    addLine("1010: a plain word", "word", 1010);
    addLine("1010: plain words", "these are words", 1010);
    addLine("1010: blank", " ", 1010);
    addLine("1010: empty", "", 1010);
    addLine("1010: NUL", "\0"s, 1010);

    addLine("1001: two opening brackets", "[[", 1001);
    addLine("1001: word between", "[A[", 1001);
    addLine("1001: blanks and word between", "[ \t A_9[", 1001);
    addLine("1001: later in the line", "K=x [ A[", 1001);
    addLine("1001 not: blank between", "[ [", 0);
    addLine("1001 not: blank after word", "[ A [", 0);
    addLine("1001 not: two words", "[ A B [", 0);

    addLine("1002: two closing brackets", "]]", 1002);
    addLine("1002: word between", "]A]", 1002);
    addLine("1002: blanks and word between", "] \v A]", 1002);
    addLine("1002 not: blank between", "] ]", 0);

    addLine("1003: two equals signs", "K==V", 1003);
    addLine("1003: word between", "K=V=W", 1003);
    addLine("1003: blanks and word between", "K= V=W", 1003);
    addLine("1003: third equals sign", "K= - =V=", 1003);
    addLine("1003 not: blank after word", "K=V =W", 0);
    addLine("1003 not: blank between", "K= =W", 0);
    addLine("1003 not: other sign between", "K=V-W=X", 0);

    addLine("1006: bracket after equals", "K=[", 1006);
    addLine("1006: closing after equals", "K=]", 1006);
    addLine("1006: equals after opening", "[=", 1006);
    addLine("1006: equals after closing", "]=", 1006);
    addLine("1006: word, then opening", "=A[", 1006);
    addLine("1006: word, then closing", "=A]", 1006);
    addLine("1006: opening, word, equals", "[A=", 1006);
    addLine("1006: closing, word, equals", "]A=", 1006);
    addLine("1006 not: blank between", "K= [", 0);
    addLine("1006 not: blanks around the word", "[ A =B", 0);

    addLine("1007: opening, word", "[LANGUAGE", 1007);
    addLine("1007: word, opening", "LANGUAGE[", 1007);
    addLine("1007 not: blank after the bracket", "[ LANGUAGE", 0);
    addLine("1007 not: bracket alone", "[", 0);

    addLine("1008: word, closing", "LANGUAGE]", 1008);
    addLine("1008: closing, word", "]LANGUAGE", 1008);
    addLine("1008 not: blank before the bracket", "LANGUAGE ]", 0);
    addLine("1008 not: bracket alone", "]", 0);

    addLine("1009: reversed", "][", 1009);
    addLine("1009: reversed around a word", "]A[", 1009);
    addLine("1009 not: blank between", "] [A", 0);

    addLine("1011: empty pair", "[]", 1011);
    addLine("1011: blanks only", "[ \t\v ]", 1011);
    addLine("1011: second pair", "[A] []", 1011);
    addLine("1011 not: star", "[*]", 0);

    addLine("1012: value without key", "=V", 1012);
    addLine("1012: with blanks", " \t= V", 1012);
    addLine("1012 not: not a word", "=-", 0);
    addLine("1012 not: something before", "-=V", 0);

    addLine("1014: key without value", "K=", 1014);
    addLine("1014: with blanks", "K \t= \v", 1014);
    addLine("1014 not: blank before the key", " K=", 0);
    addLine("1014 not: value", "K=-", 0);
}

void TestConfigLine::rejectsOrAccepts()
{
    QFETCH(std::string, line);
    QFETCH(std::uint32_t, code);
    QCOMPARE(configLineCode(line, configMarks(line)), code);
    QCOMPARE(validateConfigLine(line, 7).code, code);
}

void TestConfigLine::firstCheckThatFiresDecides_data()
{
    QTest::addColumn<std::string>("line");
    QTest::addColumn<std::uint32_t>("code");

    addLine("1001 before 1011", "[[]", 1001);
    addLine("1001 before 1002", "[[]]", 1001);
    addLine("1001 before 1003", "K==[[", 1001);
    addLine("1002 before 1011", "[]]", 1002);
    addLine("1002 before 1003", "]] K==V", 1002);
    addLine("1003 before 1006", "K==[A]", 1003);
    addLine("1003 before 1012", "==V", 1003);
    addLine("1006 before a header", "K=[A]", 1006);
    addLine("1006 before 1007", "=[A", 1006);
    addLine("1006 before 1009", "][ K=]", 1006);
    addLine("1007 before 1012", "=V [A", 1007);
    addLine("1008 before 1012", "=V A]", 1008);
    addLine("1009 before 1011", "[][A", 1009);
    addLine("1009 for two headers", "[A][B]", 1009);
    addLine("1011 before 1012", "=V []", 1011);
    addLine("a closing bracket stops 1007", "[A ]", 0);
    addLine("an opening bracket stops 1008", "[ A]", 0);
}

void TestConfigLine::firstCheckThatFiresDecides() { rejectsOrAccepts(); }

void TestConfigLine::reportsLineNumberOfARejectedLine()
{
    const ConfigParseResult result = validateConfigLine("[LANGUAGE", 12);
    QVERIFY(result.isError());
    QCOMPARE(result, (ConfigParseResult{true, 1007, 12, "", ""}));
}

void TestConfigLine::reportsNoLineNumberForAGoodLine()
{
    const ConfigParseResult result = validateConfigLine("[LANGUAGE]", 12);
    QVERIFY(!result.isError());
    QCOMPARE(result, (ConfigParseResult{true, 0, -1, "", ""}));
}

void TestConfigLine::cutsCommentAtFirstSemicolon()
{
    QCOMPARE(withoutComment("K=V ;a;b"), std::string_view("K=V "));
    QCOMPARE(withoutComment(";all"), std::string_view());
    QCOMPARE(withoutComment("K=\"a;b\""), std::string_view("K=\"a"));
    QCOMPARE(withoutComment("# no comment // either"), std::string_view("# no comment // either"));
}

void TestConfigLine::knowsBlankLines_data()
{
    QTest::addColumn<std::string>("line");
    QTest::addColumn<bool>("isBlank");
    QTest::newRow("empty") << std::string() << true;
    QTest::newRow("all blanks") << std::string(" \t\v\f\r\n") << true;
    QTest::newRow("letter") << std::string("  a ") << false;
    QTest::newRow("NUL is not blank") << "\0"s << false;
    QTest::newRow("no-break space is not blank") << std::string("\xC2\xA0") << false;
    QTest::newRow("Latin-1 no-break space is not blank") << std::string("\xA0") << false;
}

void TestConfigLine::knowsBlankLines()
{
    QFETCH(std::string, line);
    QTEST(isBlankConfigLine(line), "isBlank");
}

void TestConfigLine::findsSectionName_data()
{
    QTest::addColumn<std::string>("line");
    QTest::addColumn<std::string>("name"); // empty: none
    const auto add = [](const char *row, const std::string &line, const std::string &name) {
        QTest::newRow(row) << line << name;
    };
    add("plain", "[LANGUAGE]", "LANGUAGE");
    add("case is kept", "[Language]", "Language");
    add("blanks belong to the name", "[ LANGUAGE ]", " LANGUAGE ");
    add("two words", "[VIDEO CARD]", "VIDEO CARD");
    add("a star is a name", "[*]", "*");
    add("after a comment of another language", "//[A]", "A");
    add("inside a value", "K = [A]", "A");
    add("second candidate", "[a-b] [C] [D]", "C");
    add("innermost bracket", "[ [A]", "A");
    add("hyphen is no name", "[A-B]", "");
    add("non-ASCII is no name", "[\xC3\xA9]", "");
    add("NUL is no name", "[A\0B]"s, "");
    add("empty", "[]", "");
    add("never closed", "[ A", "");
    add("never opened", "A ]", "");
    add("no bracket", "A", "");
}

void TestConfigLine::findsSectionName()
{
    QFETCH(std::string, line);
    QTEST(std::string(findSectionName(line).value_or(std::string_view())), "name");
    QFETCH(std::string, name);
    QCOMPARE(findSectionName(line).has_value(), !name.empty());
}

void TestConfigLine::findsKeyAndValue_data()
{
    QTest::addColumn<std::string>("line");
    QTest::addColumn<std::string>("key"); // empty: no pair
    QTest::addColumn<std::string>("value");
    const auto add = [](const char *row, const std::string &line, const std::string &key, const std::string &value) {
        QTest::newRow(row) << line << key << value;
    };
    add("plain", "K=V", "K", "V");
    add("case is kept", "Key=Value", "Key", "Value");
    add("leading blanks go, trailing stay", " K \t= \v V  ", "K", "V  ");
    add("value of other signs", "K=./a,b:\"c\"", "K", "./a,b:\"c\"");
    add("value with equals sign", "K=a =b", "K", "a =b");
    add("value of one blank", " K= ", "K", " ");
    add("value of the last blank", " K= \t\v", "K", "\v");
    add("no value", " K=", "", "");
    add("key after a hyphen", "MY-KEY=1", "KEY", "1");
    add("key with a prefix", "X-DEFAULT_LANGUAGE=french", "DEFAULT_LANGUAGE", "french");
    add("last of several words", "one two three =4", "three", "4");
    add("second equals sign", "- = K = V", "K", "V");
    add("empty key first", "=-K=V", "K", "V");
    add("key cut at a non-ASCII letter", "na\xC3\xAFve=1", "ve", "1");
    add("key of non-ASCII letters only", "\xD1\x8F\xD0\xB7\xD1\x8B\xD0\xBA=1", "", "");
    add("no-break space is no blank", "K\xC2\xA0=1", "", "");
    add("non-ASCII value", "K=\xC3\xA9", "K", "\xC3\xA9");
    add("NUL stays in the value", "K=a\0b"s, "K", "a\0b"s);
    add("NUL ends a key", "A\0K=1"s, "K", "1");
    add("nothing before", "=V", "", "");
    add("no equals sign", "K V", "", "");
}

void TestConfigLine::findsKeyAndValue()
{
    QFETCH(std::string, line);
    QFETCH(std::string, key);
    const auto pair = findKeyAndValue(line);
    QCOMPARE(pair.has_value(), !key.empty());
    QCOMPARE(std::string(pair.value_or(ConfigPair{}).key), key);
    QTEST(std::string(pair.value_or(ConfigPair{}).value), "value");
}

void TestConfigLine::seesEachMarkAtEachPlace()
{
    const auto isSeen = [](const std::string &line, char mark) {
        const ConfigMarks marks = configMarks(line);
        return marks.hasOpening == (mark == '[') && marks.hasClosing == (mark == ']') && marks.hasEquals == (mark == '=');
    };
    for (std::size_t length = 0; length < 20; ++length) { // two blocks of eight bytes and a rest
        for (const char other : {'a', '\0', 'Z', '\\', '^', '<', '>', '\xDB', '\xDD', '\xBD'}) { // neighbours, with a bit more
            QVERIFY(isSeen(std::string(length, other), other));
            for (std::size_t at = 0; at < length; ++at) {
                for (const char mark : {'[', ']', '='}) {
                    std::string line(length, other);
                    line[at] = mark;
                    QVERIFY2(isSeen(line, mark), line.c_str());
                }
            }
        }
    }
}

void TestConfigLine::bytesAbove127BelongToNoClass()
{
    for (int value = 0x80; value <= 0xFF; ++value) {
        const char byte = static_cast<char>(value);
        QVERIFY2(!isWordByte(byte) && !isBlankByte(byte), qPrintable(QString::number(value, 16)));
        QCOMPARE(toUpperAscii(byte), byte);
        QCOMPARE(toLowerAscii(byte), byte);
    }
}

void TestConfigLine::caseConversionTouchesAsciiLettersOnly()
{
    QCOMPARE(toUpperAscii("a\0iz_09@[`{\xC3\xA9"s), "A\0IZ_09@[`{\xC3\xA9"s);
    QCOMPARE(toLowerAscii("A\0IZ_09@[`{\xC3\x89"s), "a\0iz_09@[`{\xC3\x89"s);
}

void TestConfigLine::valuePatternsAreValidAndAnchored()
{
    const auto fits = [](std::string_view pattern, const std::string &text) {
        return std::regex_search(text, std::regex(std::string(pattern)));
    };
    QVERIFY(fits(config_value_pattern::boolean, "0") && fits(config_value_pattern::boolean, "1"));
    QVERIFY(!fits(config_value_pattern::boolean, "2") && !fits(config_value_pattern::boolean, "01"));
    QVERIFY(fits(config_value_pattern::wholeNumber, "0123") && !fits(config_value_pattern::wholeNumber, "-1"));
    QVERIFY(fits(config_value_pattern::decimal, "-1.") && fits(config_value_pattern::decimal, "+.5"));
    QVERIFY(!fits(config_value_pattern::decimal, "1") && !fits(config_value_pattern::decimal, "."));
}

QTEST_GUILESS_MAIN(TestConfigLine)
#include "tst_config_line.moc"
