// SPDX-License-Identifier: Apache-2.0
#include "host/core/verdict.h"

#include <QObject>
#include <QTest>

using host::Verdict;

class TestVerdict : public QObject {
    Q_OBJECT

private slots:
    void isAPassOnlyWhereNothingSpeaksAgainstIt_data();
    void isAPassOnlyWhereNothingSpeaksAgainstIt();
};

void TestVerdict::isAPassOnlyWhereNothingSpeaksAgainstIt_data()
{
    QTest::addColumn<std::uint32_t>("code");
    QTest::addColumn<QList<std::uint32_t>>("levels");
    QTest::addColumn<bool>("wasStopped");
    QTest::addColumn<Verdict>("verdict");
    QTest::addColumn<std::uint32_t>("exitCode");
    const QList<std::uint32_t> none;
    QTest::newRow("pass") << 0U << none << false << Verdict::passed << 0U;
    QTest::newRow("pass with a note") << 0U << QList<std::uint32_t>{0} << false << Verdict::passed << 0U;
    QTest::newRow("pass with an error") << 0U << QList<std::uint32_t>{0, 2} << false << Verdict::notCompleted << 4U;
    QTest::newRow("stopped pass") << 0U << none << true << Verdict::stopped << 4U;
    QTest::newRow("stopped failure") << 1U << QList<std::uint32_t>{2} << true << Verdict::stopped << 4U;
    QTest::newRow("failure") << 1U << QList<std::uint32_t>{2, 0} << false << Verdict::failed << 1U;
    QTest::newRow("cannot be performed") << 3U << none << false << Verdict::cannotBePerformed << 3U;
    QTest::newRow("not completed") << 4U << none << false << Verdict::notCompleted << 4U;
    QTest::newRow("invalid call") << 6U << none << false << Verdict::invalidCall << 6U;
    QTest::newRow("unheard-of code") << 2U << none << false << Verdict::notCompleted << 4U;
    QTest::newRow("huge code") << 0xFFFFFFFFU << none << false << Verdict::notCompleted << 4U;
}

void TestVerdict::isAPassOnlyWhereNothingSpeaksAgainstIt()
{
    QFETCH(const std::uint32_t, code);
    QFETCH(const QList<std::uint32_t>, levels);
    QFETCH(const bool, wasStopped);
    host::RunRecord record;
    record.code = code;
    record.wasStopped = wasStopped;
    for (const std::uint32_t level : levels)
        record.messages.append({QStringLiteral("KEY"), level});
    const Verdict verdict = host::verdictOf(record);
    QTEST(verdict, "verdict");
    QTEST(host::codeOf(verdict), "exitCode");
    QCOMPARE(QByteArray(host::verdictKey(verdict)) == "VERDICT_PASSED", verdict == Verdict::passed);
}

QTEST_GUILESS_MAIN(TestVerdict)
#include "tst_verdict.moc"
