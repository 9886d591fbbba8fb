// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_message.h"

#include <QObject>
#include <QTest>

using namespace host;
using Kind = GuardianMessage::Kind;

class TestGuardianMessage : public QObject {
    Q_OBJECT

private slots:
    void standsOnOneLine_data();
    void standsOnOneLine();
    void passesOverOtherLines_data();
    void passesOverOtherLines();
    void findsTheCommand_data();
    void findsTheCommand();
};

void TestGuardianMessage::standsOnOneLine_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("ready") << static_cast<int>(Kind::ready) << QString() << QByteArray("{\"event\":\"ready\"}\n");
    QTest::newRow("put back") << static_cast<int>(Kind::putBack) << QStringLiteral("Kopfh\u00f6rer \"A\"\nB")
                              << QByteArray("{\"event\":\"putBack\",\"name\":\"Kopfh\xC3\xB6rer \\\"A\\\"\\nB\"}\n");
    QTest::newRow("done") << static_cast<int>(Kind::done) << QString() << QByteArray("{\"event\":\"done\"}\n");
    QTest::newRow("failed") << static_cast<int>(Kind::failed) << QStringLiteral("No.")
                            << QByteArray("{\"event\":\"failed\",\"reason\":\"No.\"}\n");
}

void TestGuardianMessage::standsOnOneLine()
{
    QFETCH(const int, kind);
    QFETCH(const QString, text);
    QFETCH(const QByteArray, line);
    QCOMPARE(toLine({static_cast<Kind>(kind), text}), line);
    const auto message = fromLine(line);
    QVERIFY(message);
    QCOMPARE(static_cast<int>(message->kind), kind);
    QCOMPARE(message->text, text);
}

void TestGuardianMessage::passesOverOtherLines_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"", "\n", "ready", "{}", "[]", "{\"event\":\"Ready\"}", "{\"event\":1}", "{\"event\":\"ready\""})
        QTest::newRow(line) << QByteArray(line);
}

void TestGuardianMessage::passesOverOtherLines()
{
    QFETCH(const QByteArray, line);
    QVERIFY(!fromLine(line));
}

void TestGuardianMessage::findsTheCommand_data()
{
    QTest::addColumn<QByteArrayList>("pieces");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("whole") << QByteArrayList{"finish\n"} << true;
    QTest::newRow("in pieces") << QByteArrayList{"f", "ini", "", "sh", "\n"} << true;
    QTest::newRow("after other lines") << QByteArrayList{"\nhello\nfin", "ish\n"} << true;
    QTest::newRow("after a line without end to speak of") << QByteArrayList{QByteArray(100'000, 'x'), "\nfinish\n"} << true;
    QTest::newRow("followed by more") << QByteArrayList{"finish\nmore"} << true;
    QTest::newRow("without the line's end") << QByteArrayList{"finish"} << false;
    QTest::newRow("as a line's end") << QByteArrayList{"xfinish\n"} << false;
    QTest::newRow("as a line's beginning") << QByteArrayList{"finished\n"} << false;
    QTest::newRow("another case") << QByteArrayList{"FINISH\n"} << false;
    QTest::newRow("nothing") << QByteArrayList{} << false;
}

void TestGuardianMessage::findsTheCommand()
{
    QFETCH(const QByteArrayList, pieces);
    CommandReader reader;
    bool isFound = false;
    for (const QByteArray &piece : pieces)
        isFound = isFound || reader.feed(piece);
    QTEST(isFound, "isFound");
}

QTEST_GUILESS_MAIN(TestGuardianMessage)
#include "tst_guardian_message.moc"
