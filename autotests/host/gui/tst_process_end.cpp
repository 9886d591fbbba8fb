// SPDX-License-Identifier: Apache-2.0
#include <QCoreApplication>
#include <QObject>
#include <QProcess>
#include <QTest>

namespace {

constexpr int patienceMs = 30'000;

} // namespace

// How a process ends that somebody else than its `main` ends.
class TestProcessEnd : public QObject {
    Q_OBJECT

private slots:
    void endsWithoutAVerdictOfItsOwn_data();
    void endsWithoutAVerdictOfItsOwn();
    void takesNoBreakdownForAVerdict();
};

void TestProcessEnd::endsWithoutAVerdictOfItsOwn_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("code");
    const auto add = [](const char *name, const char *words, int code) {
        QTest::newRow(name) << QString::fromLatin1(words) << code;
    };
    add("nothing guarded", "exit1", 1);
    add("like a failed test", "guard exit1", 4);
    add("like a passed test", "guard exit0", 4);
    add("after the verdict", "guard verdict0 exit1", 0);
    add("the verdict is a failure", "guard verdict1 exit0", 1);
    add("verdict of a program that is not guarded", "verdict0 exit1", 1);
    add("guarded twice", "guard verdict0 guard exit1", 0);
    add("what was registered later comes second", "guard late guard exit1", 4);
    add("released", "guard verdict1 release exit0", 0);
}

void TestProcessEnd::endsWithoutAVerdictOfItsOwn()
{
    QFETCH(const QString, words);
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ending_program"), words.split(u' '));
    QVERIFY(process.waitForFinished(patienceMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QTEST(process.exitCode(), "code");
}

// One system tells of it by a signal, another by an exit code that is a verdict here.
void TestProcessEnd::takesNoBreakdownForAVerdict()
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ending_program"),
                  {QStringLiteral("guard"), QStringLiteral("verdict0"), QStringLiteral("abort")});
    QVERIFY(process.waitForFinished(patienceMs));
    QVERIFY2(process.exitStatus() == QProcess::CrashExit || process.exitCode() == 4,
             qPrintable(QString::number(process.exitCode())));
}

QTEST_GUILESS_MAIN(TestProcessEnd)
#include "tst_process_end.moc"
