// SPDX-License-Identifier: Apache-2.0
#include "utils/config_reader.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

using namespace ostra::utils;

namespace {

constexpr std::size_t mebibyte = 1024 * 1024;
constexpr unsigned smallStackByteCount = 256 * 1024;

std::string repeated(std::string_view piece, std::size_t byteCount)
{
    std::string text;
    text.reserve(byteCount + piece.size());
    while (text.size() < byteCount)
        text += piece;
    text.resize(byteCount);
    return text;
}

/// Runs `work` on a thread whose stack is far too small for an engine that recurses once per character.
void runOnSmallStack(const std::function<void()> &work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(smallStackByteCount);
    thread->start();
    thread->wait();
}

} // namespace

/// Files that nobody writes by hand: very long lines and very many of them.
class TestConfigReaderLimits : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void longLinesNeitherGrowTheStackNorLoseBytes_data();
    void longLinesNeitherGrowTheStackNorLoseBytes();
    void timeGrowsLinearlyWithTheLine_data();
    void timeGrowsLinearlyWithTheLine();
    void readsAHundredThousandSections();

private:
    QString path(const QString &name) const { return folder_.filePath(name); }
    void write(const std::string &content, const QString &name = QStringLiteral("config.ini")) const;
    ConfigParseResult read(const std::string &content, IniConfiguration &configuration) const;
    qint64 fastestRead(const std::string &content) const;

    QTemporaryDir folder_;
};

void TestConfigReaderLimits::initTestCase() { QVERIFY(folder_.isValid()); }

void TestConfigReaderLimits::write(const std::string &content, const QString &name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content.data(), static_cast<qint64>(content.size())), static_cast<qint64>(content.size()));
}

ConfigParseResult TestConfigReaderLimits::read(const std::string &content, IniConfiguration &configuration) const
{
    write(content);
    return readConfigFile(path(QStringLiteral("config.ini")).toStdString(), configuration);
}

/// In nanoseconds, the least of five.
qint64 TestConfigReaderLimits::fastestRead(const std::string &content) const
{
    write(content);
    qint64 best = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 5; ++round) {
        IniConfiguration table;
        QElapsedTimer timer;
        timer.start();
        readConfigFile(path(QStringLiteral("config.ini")).toStdString(), table);
        best = std::min(best, timer.nsecsElapsed());
    }
    return best;
}

void TestConfigReaderLimits::longLinesNeitherGrowTheStackNorLoseBytes_data()
{
    QTest::addColumn<std::size_t>("byteCount");
    QTest::newRow("1 MiB") << mebibyte;
    QTest::newRow("10 MiB") << 10 * mebibyte;
}

void TestConfigReaderLimits::longLinesNeitherGrowTheStackNorLoseBytes()
{
    QFETCH(std::size_t, byteCount);
    const std::string value = repeated("value \xC3\xA9\xE2\x82\xAC-", byteCount - 20) + "end";
    const std::string name = repeated("a", byteCount);
    write("K=" + value, QStringLiteral("value.ini"));
    write(name + "=V", QStringLiteral("key.ini"));
    write("[" + name + "]", QStringLiteral("section.ini"));
    write(name, QStringLiteral("word.ini"));
    IniConfiguration values, keys, sections, words;
    ConfigParseResult wordResult;
    runOnSmallStack([&] {
        readConfigFile(path(QStringLiteral("value.ini")).toStdString(), values);
        readConfigFile(path(QStringLiteral("key.ini")).toStdString(), keys);
        readConfigFile(path(QStringLiteral("section.ini")).toStdString(), sections);
        wordResult = readConfigFile(path(QStringLiteral("word.ini")).toStdString(), words);
    });
    QVERIFY(getConfigValue(values, "", "K") == value);
    QVERIFY(getConfigValue(keys, "", repeated("A", byteCount)) == "V");
    QVERIFY(sections.contains(repeated("A", byteCount)));
    QCOMPARE(wordResult, (ConfigParseResult{true, 1010, 1, "", ""}));
}

void TestConfigReaderLimits::timeGrowsLinearlyWithTheLine_data()
{
    QTest::addColumn<std::string>("start");
    QTest::addColumn<std::string>("piece");
    const auto add = [](const char *row, const char *start, const char *piece) {
        QTest::newRow(row) << std::string(start) << std::string(piece);
    };
    add("a word that closes nothing", "- ]", "a");
    add("a word that opens nothing", "- [ ", "a");
    add("a value of one word", "K=", "a");
    add("a key of one word", "", "a");
    add("blanks", "", " ");
    add("blanks behind an equals sign", "K=", " ");
    add("blanks behind a bracket", "[", " ");
    add("words", "K=", "word ");
    add("words and blanks before no equals sign", "- ] ", "w  ");
    add("opening brackets", "", "[ ");
    add("closing brackets", "", "] ");
    add("equals signs", "", "= ");
    add("equals signs between words", "- ", "= a b ");
    add("brackets between words", "- ", "] a [ ");
    add("unfinished names", "] ", "[ - ");
    add("names that nearly close", "", "[ a- ] ");
    add("comment signs", "K=V", ";");
    add("stray bytes", "K=V", "\xFF");
    add("carriage returns", "K=V", "\r");
}

// Sixteen times the line costs sixteen times the time, and 256 times if it were quadratic: 64 lies between the two. A busy
// machine can spoil one comparison, but makes no quadratic reader look linear, so one good comparison of five is enough.
void TestConfigReaderLimits::timeGrowsLinearlyWithTheLine()
{
    QFETCH(std::string, start);
    QFETCH(std::string, piece);
    constexpr std::size_t factor = 16;
    constexpr qint64 limit = 64;
    constexpr std::size_t smallByteCount = 128 * 1024;
    QString measured;
    for (int comparison = 0; comparison < 5; ++comparison) {
        const qint64 small = fastestRead(start + repeated(piece, smallByteCount));
        const qint64 large = fastestRead(start + repeated(piece, factor * smallByteCount));
        measured += QStringLiteral("%1 ns and %2 ns; ").arg(small).arg(large);
        if (large < limit * small)
            return;
    }
    QFAIL(qPrintable(measured));
}

void TestConfigReaderLimits::readsAHundredThousandSections()
{
    constexpr int sectionCount = 100'000;
    std::string content;
    for (int section = 0; section < sectionCount; ++section)
        content += "[s" + std::to_string(section) + "]\nkey=" + std::to_string(section) + "\n";
    IniConfiguration table;
    QCOMPARE(read(content, table), (ConfigParseResult{true, 0, -1, "", ""}));
    QCOMPARE(table.size(), std::size_t{sectionCount + 1});
    QCOMPARE(getConfigValue(table, "S99999", "KEY"), std::string("99999"));
    table.clear();
    QCOMPARE(read(content + "[S7]", table), (ConfigParseResult{true, 1, 2 * sectionCount + 1, "", "S7"}));
}

QTEST_GUILESS_MAIN(TestConfigReaderLimits)
#include "tst_config_reader_limits.moc"
