// SPDX-License-Identifier: Apache-2.0
#include "utils/wide_text.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <string>

using ostra::utils::toUtf8;
using namespace std::string_literals;

class TestWideText : public QObject {
    Q_OBJECT

private slots:
    void converts_data();
    void converts();
    void agreesWithQtOnEveryCodePoint();
    void convertsLongText();
};

void TestWideText::converts_data()
{
    QTest::addColumn<QString>("wide");
    QTest::addColumn<std::string>("utf8");
    const auto add = [](const char *row, std::u16string_view wide, const std::string &utf8) {
        QTest::newRow(row) << QString::fromUtf16(wide.data(), static_cast<qsizetype>(wide.size())) << utf8;
    };
    add("empty", u"", "");
    add("language name", u"de-DE", "de-DE");
    add("no terminator in the result", u"A", "A");
    add("ends at the first zero", u"de-DE\0en-US\0\0"s, "de-DE");
    add("zero at the front", u"\0A"s, "");
    add("last of one byte", u"\x7F", "\x7F");
    add("first of two bytes", u"\u0080", "\xC2\x80");
    add("last of two bytes", u"\u07FF", "\xDF\xBF");
    add("first of three bytes", u"\u0800", "\xE0\xA0\x80");
    add("last before the surrogates", u"\uD7FF", "\xED\x9F\xBF");
    add("first after the surrogates", u"\uE000", "\xEE\x80\x80");
    add("last of three bytes", u"\uFFFF", "\xEF\xBF\xBF");
    add("first pair", u"\U00010000", "\xF0\x90\x80\x80");
    add("face", u"\U0001F600", "\xF0\x9F\x98\x80");
    add("last pair", u"\U0010FFFF", "\xF4\x8F\xBF\xBF");
    add("folder", u"C:\\\u0411\u0435\u0442\u0430", "C:\\\xD0\x91\xD0\xB5\xD1\x82\xD0\xB0");
    const std::u16string high(1, char16_t{0xD83D});
    const std::u16string low(1, char16_t{0xDE00});
    add("lone high surrogate", u"a" + high + u"b",
        "a\xEF\xBF\xBD"
        "b");
    add("lone low surrogate", u"a" + low + u"b",
        "a\xEF\xBF\xBD"
        "b");
    add("high surrogate at the end", u"a" + high, "a\xEF\xBF\xBD");
    add("two high surrogates before a low one", high + high + low, "\xEF\xBF\xBD\xF0\x9F\x98\x80");
    add("pair the wrong way round", low + high, "\xEF\xBF\xBD\xEF\xBF\xBD");
}

void TestWideText::converts()
{
    QFETCH(QString, wide);
    QTEST(toUtf8(wide.toStdU16String()), "utf8");
}

void TestWideText::agreesWithQtOnEveryCodePoint()
{
    for (char32_t point = 1; point <= 0x10FFFF; ++point) {
        if (point == 0xD800)
            point = 0xE000;
        const QString text = QString::fromUcs4(&point, 1);
        if (toUtf8(text.toStdU16String()) != text.toStdString())
            QFAIL(qPrintable(QString::number(static_cast<quint32>(point), 16)));
    }
}

void TestWideText::convertsLongText()
{
    const std::u16string wide(1'000'000, u'\u20AC');
    const std::string utf8 = toUtf8(wide);
    QCOMPARE(utf8.size(), std::size_t{3'000'000});
    QCOMPARE(QString::fromStdString(utf8), QString::fromStdU16String(wide));
}

QTEST_GUILESS_MAIN(TestWideText)
#include "tst_wide_text.moc"
