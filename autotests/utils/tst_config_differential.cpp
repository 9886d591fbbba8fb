// SPDX-License-Identifier: Apache-2.0
#include "autotests/utils/config_pattern_oracle.h"
#include "utils/config_line.h"
#include "utils/config_vocabulary.h"

#include <QByteArray>
#include <QObject>
#include <QTest>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>

using namespace ostra::utils;
using namespace std::string_view_literals;

namespace {

constexpr int defaultLineCount = 120'000;
constexpr std::uint32_t seed = 20'260'101;
constexpr std::size_t longestLineByteCount = 40;

/// Lines without order and lines put together from pieces that the format knows.
class LineGenerator {
public:
    std::string next() { return random_() % 2 == 0 ? fromBytes() : fromPieces(); }

private:
    std::string fromBytes();
    std::string fromPieces();
    std::size_t below(std::size_t limit) { return random_() % limit; }

    std::mt19937 random_{seed};
};

std::string LineGenerator::fromBytes()
{
    constexpr std::string_view alphabet = "[[]]==;*- \t\v\r\n\fAazZ0_9\xC3\xA9\xC2\xA0\xFF\0\"$^|\\"sv;
    // Short lines are the likelier ones: they reach the later checks.
    std::string line(below(1 + below(longestLineByteCount + 1)), ' ');
    for (char &byte : line)
        byte = alphabet[below(alphabet.size())];
    return line;
}

std::string LineGenerator::fromPieces()
{
    constexpr std::array pieces = {"["sv,   "]"sv, "="sv, "="sv,        " "sv,  " "sv,   "\t \v"sv, "A"sv,   "key_1"sv,
                                   "KEY"sv, "-"sv, "*"sv, "\xC3\xA9"sv, "\0"sv, "[A]"sv, "[A b]"sv, "K=V"sv, "K = "sv};
    std::string line;
    for (std::size_t count = below(8); count > 0; --count)
        line += pieces[below(pieces.size())];
    return line.substr(0, longestLineByteCount);
}

QByteArray shown(const std::string &line) { return QByteArray::fromStdString(line).toPercentEncoding(" []=*-_;"); }

std::optional<std::string> copied(std::optional<std::string_view> text)
{
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

std::optional<std::pair<std::string, std::string>> copied(const std::optional<ConfigPair> &pair)
{
    if (!pair)
        return std::nullopt;
    return std::pair(std::string(pair->key), std::string(pair->value));
}

int lineCount()
{
    const int wanted = qEnvironmentVariableIntValue("MODULE_AUDIO_DIFFERENTIAL_LINES");
    return wanted > 0 ? wanted : defaultLineCount;
}

} // namespace

/// The hand-written matchers against the patterns. MODULE_AUDIO_DIFFERENTIAL_LINES sets another number of lines.
class TestConfigDifferential : public QObject {
    Q_OBJECT

private slots:
    void agreesWithThePatternsOnGeneratedLines();
    void agreesWithThePatternsOnEveryShortLine();

private:
    void compare(const std::string &line);

    PatternOracle oracle_;
    std::map<std::uint32_t, int> lineCountByCode_;
    int sectionCount_ = 0;
    int pairCount_ = 0;
    int neitherCount_ = 0;
};

void TestConfigDifferential::compare(const std::string &line)
{
    const std::uint32_t code = oracle_.code(line);
    QVERIFY2(configLineCode(line, configMarks(line)) == code, "code: " + shown(line));
    QVERIFY2(isBlankConfigLine(line) == oracle_.isBlank(line), "blank: " + shown(line));
    const auto section = oracle_.section(line);
    QVERIFY2(copied(findSectionName(line)) == section, "section: " + shown(line));
    const auto pair = oracle_.keyAndValue(line);
    QVERIFY2(copied(findKeyAndValue(line)) == pair, "key and value: " + shown(line));
    ++lineCountByCode_[code];
    sectionCount_ += section ? 1 : 0;
    pairCount_ += pair ? 1 : 0;
    neitherCount_ += !section && !pair && code == 0 ? 1 : 0;
}

void TestConfigDifferential::agreesWithThePatternsOnGeneratedLines()
{
    LineGenerator generator;
    for (int left = lineCount(); left > 0; --left) {
        compare(generator.next());
        if (QTest::currentTestFailed())
            return;
    }
    constexpr int enough = 20;
    for (const auto &check : config_line_pattern::checks)
        QVERIFY2(lineCountByCode_[check.code] >= enough, qPrintable(QString::number(check.code)));
    QVERIFY(lineCountByCode_[0] >= enough && lineCountByCode_[1010] >= enough);
    QVERIFY(sectionCount_ >= enough && pairCount_ >= enough && neitherCount_ >= enough);
    QVERIFY(lineCountByCode_.size() == config_line_pattern::checks.size() + 2);
}

void TestConfigDifferential::agreesWithThePatternsOnEveryShortLine()
{
    constexpr std::string_view alphabet = "[]= A-";
    constexpr std::size_t byteCount = 5;
    std::array<std::size_t, byteCount> digits{};
    for (std::size_t position = 0; position < byteCount;) {
        std::string line;
        for (const std::size_t digit : digits)
            line += alphabet[digit];
        compare(line);
        if (QTest::currentTestFailed())
            return;
        for (position = 0; position < byteCount && ++digits[position] == alphabet.size(); ++position)
            digits[position] = 0;
    }
}

QTEST_GUILESS_MAIN(TestConfigDifferential)
#include "tst_config_differential.moc"
