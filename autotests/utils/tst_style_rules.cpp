// SPDX-License-Identifier: Apache-2.0
#include "utils/style_colors.h"
#include "utils/style_rules.h"
#include "utils/style_subject.h"

#include <QElapsedTimer>
#include <QObject>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <limits>

using namespace ostra::utils;

namespace {

QString rewritten(const QString &sheet) { return StyleRules::parse(sheet).toText(); }

QString rewritten(const char *sheet) { return rewritten(QString::fromUtf8(sheet)); }

QStringList &complaints()
{
    static QStringList list;
    return list;
}

qint64 nanosecondsToRewrite(const QString &sheet)
{
    qint64 least = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        const QString text = rewritten(sheet);
        least = std::min(least, timer.nsecsElapsed());
        if (text.size() > 2 * sheet.size() + 1000)
            return std::numeric_limits<qint64>::max();
    }
    return least;
}

} // namespace

class TestStyleRules : public QObject {
    Q_OBJECT

private slots:
    void writesSelectorAndIndentedProperties();
    void keepsTheOrderOfRulesAndProperties();
    void mergesTheRulesOfOneSelector();
    void laterDeclarationsMoveBehindEarlierOnes();
    void importantGivesWayOnlyToImportant();
    void readsAwkwardText_data();
    void readsAwkwardText();
    void qtReadsWhatIsWritten_data();
    void qtReadsWhatIsWritten();
    void aRefusedSheetWouldBeNoticed();
    void takesLinearTime_data();
    void takesLinearTime();
    void readsTheSubjectOfASelector();
    void replacesColours_data();
    void replacesColours();
};

void TestStyleRules::writesSelectorAndIndentedProperties()
{
    QCOMPARE(rewritten("QLabel{color:red;border : 1px solid #fff}QFrame   >  QLabel\n{\n}\n*{margin:0}"),
             QStringLiteral("QLabel {\n  color: red;\n  border: 1px solid #fff;\n}\n* {\n  margin: 0;\n}\n"));
    QCOMPARE(rewritten(""), QString());
}

void TestStyleRules::keepsTheOrderOfRulesAndProperties()
{
    const QString text = rewritten("QSpinBox{z-a:1;a-z:2}QLabel{color:red}QComboBox{color:red}");
    QVERIFY(text.indexOf(QStringLiteral("QSpinBox")) < text.indexOf(QStringLiteral("QLabel")));
    QVERIFY(text.indexOf(QStringLiteral("QLabel")) < text.indexOf(QStringLiteral("QComboBox")));
    QVERIFY(text.indexOf(QStringLiteral("z-a")) < text.indexOf(QStringLiteral("a-z")));
}

void TestStyleRules::mergesTheRulesOfOneSelector()
{
    const StyleRules rules = StyleRules::parse(QStringLiteral("A,B{color:red;margin:1px}C{color:blue}A ,\n B{color:green}"));
    QCOMPARE(rules.rules().size(), 2);
    QCOMPARE(rules.rules().first().selector(), QStringLiteral("A, B"));
    QCOMPARE(rules.rules().first().value(QStringLiteral("color")), QStringLiteral("green"));
    QCOMPARE(rules.rules().first().value(QStringLiteral("margin")), QStringLiteral("1px"));
    QVERIFY(rules.rules().first().value(QStringLiteral("padding")).isNull());
}

void TestStyleRules::laterDeclarationsMoveBehindEarlierOnes()
{
    QCOMPARE(rewritten("A{border-left:1px;border:2px;Border-Left:3px}"),
             QStringLiteral("A {\n  border: 2px;\n  border-left: 3px;\n}\n"));
}

void TestStyleRules::importantGivesWayOnlyToImportant()
{
    QCOMPARE(rewritten("A{color:red !important;color:blue}"), QStringLiteral("A {\n  color: red !important;\n}\n"));
    QCOMPARE(rewritten("A{color:red ! IMPORTANT;color:blue!important}"), QStringLiteral("A {\n  color: blue!important;\n}\n"));
}

void TestStyleRules::readsAwkwardText_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const char *sheet, const char *text) {
        QTest::newRow(name) << QByteArray(sheet) << QByteArray(text);
    };
    row("colon in url", "A{image:url(\":/a:b.svg\")}", "A {\n  image: url(\":/a:b.svg\");\n}\n");
    row("colon in bare url", "A{image:url(:/a.svg)}", "A {\n  image: url(:/a.svg);\n}\n");
    row("brace and semicolon in url", "A{image:url(\":/a}b;c{d.svg\");margin:1px}",
        "A {\n  image: url(\":/a}b;c{d.svg\");\n  margin: 1px;\n}\n");
    row("brace in quotes", "A[text=\"}{;\"]{qproperty-text:\"a};b  c\"}",
        "A[text=\"}{;\"] {\n  qproperty-text: \"a};b  c\";\n}\n");
    row("escaped quote", "A{qproperty-text:\"a\\\"};\"}B{margin:1px}",
        "A {\n  qproperty-text: \"a\\\"};\";\n}\nB {\n  margin: 1px;\n}\n");
    row("comments", "/* { */A/*x*/{/*;}*/color/**/:/*:*/red/* } */;}/* end", "A {\n  color: red;\n}\n");
    row("comment mark in quotes", "A{image:url(\"/*.svg\")}B{margin:1px}",
        "A {\n  image: url(\"/*.svg\");\n}\nB {\n  margin: 1px;\n}\n");
    row("nested rule", "A{color:red;B{color:blue;margin:1px}padding:2px}C{margin:3px}",
        "A {\n  color: red;\n}\nC {\n  margin: 3px;\n}\n");
    row("too many closing", "A{color:red}}}B{margin:1px}", "A {\n  color: red;\n}\nB {\n  margin: 1px;\n}\n");
    row("missing closing", "A{color:red;\nB{margin:1px}C{margin:2px}", "A {\n  color: red;\n}\nC {\n  margin: 2px;\n}\n");
    row("open at the end", "A{color:red;margin:1px", "A {\n  color: red;\n  margin: 1px;\n}\n");
    row("open quote", "A{qproperty-text:\"x;\n color:red}B{margin:1px}", "B {\n  margin: 1px;\n}\n");
    row("no declarations", "A{color;:red;;color:;}B{}", "");
    row("no selector", "{color:red}A{margin:1px}", "A {\n  margin: 1px;\n}\n");
    row("at-rule", "@media print{A{color:red}}B{margin:1px}", "B {\n  margin: 1px;\n}\n");
    row("bad value", "A{color:re=d;margin:1px;padding:)}", "A {\n  margin: 1px;\n}\n");
    row("negated state", "A:!hover::item:selected:!active{margin:1px}",
        "A:!hover::item:selected:!active {\n  margin: 1px;\n}\n");
    row("gradient", "A{background:qlineargradient(x1:0, y1:0, stop:0 rgba(1,2,3,40%), stop:1 red)}",
        "A {\n  background: qlineargradient(x1:0, y1:0, stop:0 rgba(1,2,3,40%), stop:1 red);\n}\n");
    row("property of the object", "A{qproperty-iconSize:1px;Color:RED}", "A {\n  qproperty-iconSize: 1px;\n  color: RED;\n}\n");
}

void TestStyleRules::readsAwkwardText()
{
    QFETCH(QByteArray, sheet);
    QFETCH(QByteArray, text);
    QCOMPARE(rewritten(QString::fromUtf8(sheet)), QString::fromUtf8(text));
}

void TestStyleRules::qtReadsWhatIsWritten_data()
{
    readsAwkwardText_data();
    QTest::newRow("noise") << QByteArray("}{;:\"'(/*url(#@!,>~+*.\\\n") << QByteArray();
    QTest::newRow("bad selectors") << QByteArray("A B,,C{x:1}A>{x:1}#{x:1}A::{x:1}A[{x:1}1A{x:1}A..b{x:1}A:{x:1}")
                                   << QByteArray();
    QTest::newRow("selectors") << QByteArray("QWidget > .QLabel#a-b_c[x=\"y\"]:hover, * QFrame::item{x:1}") << QByteArray();
    QTest::newRow("values") << QByteArray("A{a:-1.5px +2em 30% #abc rgb(1, 2, 3);b:url( \"x\" ) 'y';c:a, b/c;d:e !important}")
                            << QByteArray();
    QTest::newRow("signs without a colour")
        << QByteArray("A{a:x#a, red;b:#zz;c:#12345;d:#1234567;e:#12345678;f:#fff#ffg}") << QByteArray();
    QTest::newRow("a page break in quotes") << QByteArray("A{x:url(\":/\f.svg\");y:'\f';z:'\\\f'}") << QByteArray();
    QTest::newRow("beyond ASCII") << QByteArray("QLabel#\xC3\xA4{x:1}A{b:\xC3\xA4;c:\"\xE2\x82\xAC\xC3\xA4\"}") << QByteArray();
}

void TestStyleRules::qtReadsWhatIsWritten()
{
    QFETCH(QByteArray, sheet);
    complaints().clear();
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { complaints().append(text); });
    QWidget widget;
    widget.setStyleSheet(rewritten(QString::fromUtf8(sheet)));
    widget.ensurePolished();
    qInstallMessageHandler(before);
    QVERIFY2(complaints().filter(QStringLiteral("parse")).isEmpty(), qPrintable(rewritten(QString::fromUtf8(sheet))));
}

void TestStyleRules::aRefusedSheetWouldBeNoticed()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Could not parse")));
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("A{color:re=d}{"));
    widget.ensurePolished();
}

void TestStyleRules::takesLinearTime_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("many rules") << QByteArray() << QByteArray("QLabel#x { color: red; border: 1px solid #fff; }\n");
    QTest::newRow("one rule, one property") << QByteArray("A{") << QByteArray("color:red;");
    QTest::newRow("one long selector") << QByteArray("A") << QByteArray(",QLabel#x:hover");
    QTest::newRow("one long value") << QByteArray("A{a:b") << QByteArray(" rgb(1,2,3)");
    QTest::newRow("open braces") << QByteArray() << QByteArray("A{");
    QTest::newRow("closed braces") << QByteArray() << QByteArray("}");
    QTest::newRow("open comment") << QByteArray() << QByteArray("A{} /*");
    QTest::newRow("open quotes") << QByteArray("A{a:") << QByteArray("\"\n");
    QTest::newRow("open urls") << QByteArray("A{a:") << QByteArray("url(\n");
    QTest::newRow("brackets") << QByteArray("A{a:b") << QByteArray("(");
    QTest::newRow("colons") << QByteArray("A") << QByteArray(":");
}

void TestStyleRules::takesLinearTime()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, piece);
    constexpr qsizetype megabyte = 1 << 20;
    const auto sheet = [&](qsizetype size) { return QString::fromLatin1(head + piece.repeated(size / piece.size())); };
    qint64 quarter = 0;
    qint64 whole = 0;
    // Four times the text: 4 when linear, 16 when quadratic. Below a few milliseconds the clock decides, and beside other
    // work the system does: what takes quadratic time takes it whenever one looks.
    const auto isLinear = [&] { return whole < 9 * quarter || whole < 5'000'000; };
    for (int look = 0; look < 5 && !(look > 0 && isLinear()); ++look) {
        quarter = nanosecondsToRewrite(sheet(megabyte / 4));
        whole = nanosecondsToRewrite(sheet(megabyte));
        QVERIFY(whole < std::numeric_limits<qint64>::max());
    }
    QVERIFY2(isLinear(), qPrintable(QStringLiteral("%1 / %2 ns").arg(whole).arg(quarter)));
}

void TestStyleRules::readsTheSubjectOfASelector()
{
    const StyleSubject subject =
        StyleSubject::of(QStringLiteral("QDialog > .QTableView#list[a=\"b c#d\"]::item:Selected:!active"));
    QCOMPARE(subject.type, QStringLiteral("QTableView"));
    QCOMPARE(subject.name, QStringLiteral("list"));
    QCOMPARE(subject.subControl, QStringLiteral("item"));
    QCOMPARE(subject.states, QStringList{QStringLiteral("selected")});
    QVERIFY(StyleSubject::of(QStringLiteral("*")).type.isEmpty());
}

void TestStyleRules::replacesColours_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *value, const char *expected) {
        QTest::newRow(value) << QString::fromLatin1(value) << QString::fromLatin1(expected);
    };
    row("#fff", "#123456");
    row("2px solid #6B7783", "2px solid #123456");
    row("red green", "#123456 #123456");
    row("1px solid rgba(1, 2, 3, 50%) !important", "1px solid #123456 !important");
    row("rgba(0, 0, 0, 0)", "rgba(0, 0, 0, 0)");
    row("transparent", "transparent");
    row("none", "none");
    row("palette(window)", "#123456");
    row("rgb(1,2,3)solid rgb(1,2,3)red", "#123456 solid #123456 #123456");
    row("qlineargradient(x1:0, stop:0 rgb(1,2,3), stop:1 red)", "#123456");
    row("url(\"red #fff\") blue", "url(\"red #fff\") #123456");
    row("2px dotted", "2px dotted");
}

void TestStyleRules::replacesColours()
{
    QFETCH(QString, value);
    QFETCH(QString, expected);
    QCOMPARE(withColor(value, QStringLiteral("#123456")), expected);
    QCOMPARE(hasColor(value), value != expected);
}

QTEST_MAIN(TestStyleRules)
#include "tst_style_rules.moc"
