// SPDX-License-Identifier: Apache-2.0
#include "host/gui/mnemonics.h"

#include <QKeySequence>
#include <QObject>
#include <QTest>

class TestMnemonics : public QObject {
    Q_OBJECT

private slots:
    void marksEachTextWithALetterOfItsOwn_data();
    void marksEachTextWithALetterOfItsOwn();
    void staysUniqueForManyTexts();
};

void TestMnemonics::marksEachTextWithALetterOfItsOwn_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("marked");
    const auto list = [](std::initializer_list<const char *> texts) {
        QStringList strings;
        for (const char *text : texts)
            strings.append(QString::fromUtf8(text));
        return strings;
    };
    QTest::newRow("first letters") << list({"File", "Test"}) << list({"&File", "&Test"});
    QTest::newRow("start of a word before its inside") << list({"Run", "Run it"}) << list({"&Run", "Run &it"});
    QTest::newRow("inside") << list({"Test", "Te"}) << list({"&Test", "T&e"});
    QTest::newRow("case does not matter") << list({"stop", "Start"}) << list({"&stop", "S&tart"});
    QTest::newRow("accents are no keys") << list({"Énoncer"}) << list({"É&noncer"});
    QTest::newRow("no Latin letter") << list({"実行", "停止"}) << list({"実行(&A)", "停止(&B)"});
    QTest::newRow("an ampersand") << list({"R&D"}) << list({"&R&&D"});
}

void TestMnemonics::marksEachTextWithALetterOfItsOwn()
{
    QFETCH(const QStringList, texts);
    QTEST(host::withMnemonics(texts), "marked");
}

void TestMnemonics::staysUniqueForManyTexts()
{
    const QStringList texts(26, QStringLiteral("Ab"));
    const QStringList marked = host::withMnemonics(texts);
    QStringList keys;
    for (const QString &text : marked)
        keys.append(QKeySequence::mnemonic(text).toString());
    QVERIFY(!keys.contains(QString()));
    QCOMPARE(keys.removeDuplicates(), 0);
}

QTEST_GUILESS_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"
