// SPDX-License-Identifier: Apache-2.0
#include "host/core/channel_check.h"

#include <QObject>
#include <QTest>

using host::ChannelEvidence;
using host::ChannelMapping;
using host::HeardSide;
using host::SideEvidence;

Q_DECLARE_METATYPE(host::ChannelEvidence)
Q_DECLARE_METATYPE(host::ChannelMapping)
Q_DECLARE_METATYPE(host::HeardSide)

namespace {

SideEvidence heard(double leftDbfs, double rightDbfs) { return {host::SideLevels{leftDbfs, rightDbfs}, -10}; }

SideEvidence unheard(double loudestDbfs = -120) { return {std::nullopt, loudestDbfs}; }

ChannelEvidence atMonitor(const SideEvidence &left, const SideEvidence &right) { return {left, right, 2, true}; }

} // namespace

class TestChannelCheck : public QObject {
    Q_OBJECT

private slots:
    void takesAPersonsWord_data();
    void takesAPersonsWord();
    void tellsTheSideByTheLevels_data();
    void tellsTheSideByTheLevels();
    void judgesWhatWasMeasured_data();
    void judgesWhatWasMeasured();
    void claimsNothingThatTheSourceCannotTell_data();
    void claimsNothingThatTheSourceCannotTell();
};

void TestChannelCheck::takesAPersonsWord_data()
{
    QTest::addColumn<HeardSide>("left");
    QTest::addColumn<HeardSide>("right");
    QTest::addColumn<ChannelMapping>("mapping");
    using enum HeardSide;
    const HeardSide sides[] = {nothing, HeardSide::left, HeardSide::right, both};
    using M = ChannelMapping;
    // One row for what the left channel was heard as, one column for the right one, in the order above.
    const M expected[4][4] = {{M::notMeasurable, M::leftSilent, M::leftSilent, M::leftSilent},
                              {M::rightSilent, M::mixed, M::straight, M::mixed},
                              {M::rightSilent, M::swapped, M::mixed, M::mixed},
                              {M::rightSilent, M::mixed, M::mixed, M::mixed}};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            QTest::addRow("%s, %s", qPrintable(host::sideName(sides[row])), qPrintable(host::sideName(sides[column])))
                << sides[row] << sides[column] << expected[row][column];
    }
}

void TestChannelCheck::takesAPersonsWord()
{
    QFETCH(const HeardSide, left);
    QFETCH(const HeardSide, right);
    QFETCH(const ChannelMapping, mapping);
    const host::ChannelCheck check = host::answeredCheck(left, right);
    QCOMPARE(check.mapping, mapping);
    QCOMPARE(check.left, left);
    QCOMPARE(check.right, right);
    QCOMPARE(check.reason.isEmpty(), mapping != ChannelMapping::notMeasurable);
    QVERIFY(check.source.isEmpty());
}

void TestChannelCheck::tellsTheSideByTheLevels_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<HeardSide>("side");
    QTest::newRow("left alone") << -20.0 << -120.0 << HeardSide::left;
    QTest::newRow("right alone") << -120.0 << -20.0 << HeardSide::right;
    QTest::newRow("just apart") << -30.0 << -20.0 << HeardSide::right;
    QTest::newRow("not quite apart") << -20.0 << -29.9 << HeardSide::both;
    QTest::newRow("alike") << -20.0 << -20.0 << HeardSide::both;
}

void TestChannelCheck::tellsTheSideByTheLevels()
{
    QFETCH(const double, left);
    QFETCH(const double, right);
    QFETCH(const HeardSide, side);
    QCOMPARE(host::sideOf({left, right}), side);
}

void TestChannelCheck::judgesWhatWasMeasured_data()
{
    QTest::addColumn<ChannelEvidence>("evidence");
    QTest::addColumn<ChannelMapping>("mapping");
    const SideEvidence left = heard(-20, -90);
    const SideEvidence right = heard(-90, -20);
    const SideEvidence both = heard(-20, -21);
    QTest::newRow("straight") << atMonitor(left, right) << ChannelMapping::straight;
    QTest::newRow("swapped") << atMonitor(right, left) << ChannelMapping::swapped;
    QTest::newRow("mono") << atMonitor(both, both) << ChannelMapping::mixed;
    QTest::newRow("all on the left") << atMonitor(left, left) << ChannelMapping::mixed;
    QTest::newRow("left silent") << atMonitor(unheard(), right) << ChannelMapping::leftSilent;
    QTest::newRow("right silent") << atMonitor(left, unheard()) << ChannelMapping::rightSilent;
    QTest::newRow("silent against noise") << atMonitor(left, unheard(-50)) << ChannelMapping::rightSilent;
    QTest::newRow("straight at a microphone") << ChannelEvidence{left, right, 2, false} << ChannelMapping::straight;
    QTest::newRow("six channels") << ChannelEvidence{left, right, 6, true} << ChannelMapping::straight;
}

void TestChannelCheck::judgesWhatWasMeasured()
{
    QFETCH(const ChannelEvidence, evidence);
    QFETCH(const ChannelMapping, mapping);
    const host::ChannelCheck check = host::judgeChannels(evidence);
    QCOMPARE(host::mappingName(check.mapping), host::mappingName(mapping));
    QVERIFY(check.reason.isEmpty());
    QCOMPARE(check.ofLeft.has_value(), evidence.left.digit.has_value());
    QCOMPARE(check.ofRight.has_value(), evidence.right.digit.has_value());
}

void TestChannelCheck::claimsNothingThatTheSourceCannotTell_data()
{
    QTest::addColumn<ChannelEvidence>("evidence");
    QTest::addColumn<QString>("reason");
    const SideEvidence left = heard(-20, -90);
    const SideEvidence right = heard(-90, -20);
    const SideEvidence both = heard(-20, -20);
    QTest::newRow("nothing heard") << atMonitor(unheard(), unheard()) << "nothing was heard";
    QTest::newRow("one channel") << ChannelEvidence{both, both, 1, true} << "one channel only";
    QTest::newRow("unknown channels") << ChannelEvidence{left, right, 0, true} << "not known how many";
    QTest::newRow("alike at a microphone") << ChannelEvidence{both, both, 2, false} << "hears both sides alike";
    QTest::newRow("softer than silence is told") << atMonitor(left, unheard(-49.9)) << "too loud to be called silent";
    QTest::newRow("the left one softer") << atMonitor(unheard(-45), right) << "too loud to be called silent";
}

void TestChannelCheck::claimsNothingThatTheSourceCannotTell()
{
    QFETCH(const ChannelEvidence, evidence);
    QFETCH(const QString, reason);
    const host::ChannelCheck check = host::judgeChannels(evidence);
    QCOMPARE(check.mapping, ChannelMapping::notMeasurable);
    QVERIFY2(check.reason.contains(reason), qPrintable(check.reason));
}

QTEST_GUILESS_MAIN(TestChannelCheck)
#include "tst_channel_check.moc"
