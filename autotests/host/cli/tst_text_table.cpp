// SPDX-License-Identifier: Apache-2.0
#include "host/cli/text_table.h"

#include "host/cli/shown_text.h"

#include <QObject>
#include <QTest>

class TestTextTable : public QObject {
    Q_OBJECT

private slots:
    void showsTextSafely_data();
    void showsTextSafely();
    void measuresWidth_data();
    void measuresWidth();
    void alignsColumnsByWidth();
    void keepsADeviceNameOnItsLine();
    void stylesTheHeaderOnly();
    void printsTheHeaderAlone();
};

void TestTextTable::showsTextSafely_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto add = [](const char *row, QStringView text, QStringView shown) {
        QTest::newRow(row) << text.toString() << shown.toString();
    };
    add("plain", u"Speakers (2) <b>&amp;", u"Speakers (2) <b>&amp;");
    add("backslash", u"a\\b", u"a\\b");
    add("escape sequence", u"\u001b[2J", u"\\x1b[2J");
    add("line end and tab", u"a\r\n\tb", u"a\\x0d\\x0a\\x09b");
    add("delete", u"\u007f", u"\\x7f");
    add("second control range", u"\u009b31m", u"\\u{009b}31m");
    add("direction override", u"a\u202eb", u"a\\u{202e}b");
    add("line separator", u"a\u2028b", u"a\\u{2028}b");
    add("joiners stay", u"\u0915\u094d\u200d\u0937", u"\u0915\u094d\u200d\u0937");
    add("byte order mark", u"\ufeffa", u"\\u{feff}a");
    add("beyond the first plane", u"\U0001F3A7", u"\U0001F3A7");
    add("tag character", u"\U000E0041", u"\\u{e0041}");
    QTest::newRow("zero") << QString(QChar(u'\0')) << QStringLiteral("\\x00");
    QTest::newRow("half a pair") << QString(QChar(0xD83D)) << QStringLiteral("\uFFFD");
}

void TestTextTable::showsTextSafely()
{
    QFETCH(QString, text);
    QTEST(host::shownText(text), "shown");
}

void TestTextTable::measuresWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    const auto add = [](const char *row, QStringView text, int width) { QTest::newRow(row) << text.toString() << width; };
    add("empty", u"", 0);
    add("letters", u"abc", 3);
    add("umlaut", u"\u00f6", 1);
    add("letter and combining mark", u"o\u0308", 1);
    add("kanji", u"\u8033", 2);
    add("katakana", u"\u30b9\u30d4", 4);
    add("halfwidth katakana", u"\uff7d\uff8b", 2);
    add("fullwidth letter", u"\uff21", 2);
    add("hangul", u"\uac00", 2);
    add("headphones", u"\U0001F3A7", 2);
    add("joiner", u"a\u200db", 2);
}

void TestTextTable::measuresWidth()
{
    QFETCH(QString, text);
    QTEST(host::displayWidth(text), "width");
}

void TestTextTable::alignsColumnsByWidth()
{
    const QString table =
        host::textTable({QStringLiteral("No"), QStringLiteral("Device"), QStringLiteral("Rate")},
                        {{QStringLiteral("0"), QStringLiteral("\u8033\u8033\u8033\u8033"), QStringLiteral("48000")},
                         {QStringLiteral("1"), QStringLiteral("Kopf\u00f6"), QString()}},
                        host::TableStyle::plain);
    QCOMPARE(table, QStringLiteral("No  Device    Rate\n"
                                   "0   \u8033\u8033\u8033\u8033  48000\n"
                                   "1   Kopf\u00f6     -\n"));
}

void TestTextTable::keepsADeviceNameOnItsLine()
{
    const QString table = host::textTable({QStringLiteral("A"), QStringLiteral("B")},
                                          {{QStringLiteral("x\ny\x1b"), QStringLiteral("1")}}, host::TableStyle::plain);
    QCOMPARE(table, QStringLiteral("A           B\nx\\x0ay\\x1b  1\n"));
}

void TestTextTable::stylesTheHeaderOnly()
{
    const QString table = host::textTable({QStringLiteral("A")}, {{QStringLiteral("1")}}, host::TableStyle::boldHeader);
    QCOMPARE(table, QStringLiteral("\x1b[1mA\x1b[0m\n1\n"));
}

void TestTextTable::printsTheHeaderAlone()
{
    QCOMPARE(host::textTable({QStringLiteral("A"), QStringLiteral("B")}, {}, host::TableStyle::plain),
             QStringLiteral("A  B\n"));
}

QTEST_GUILESS_MAIN(TestTextTable)
#include "tst_text_table.moc"
