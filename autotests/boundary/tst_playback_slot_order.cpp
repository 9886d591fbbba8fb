// SPDX-License-Identifier: Apache-2.0
#include "module_probes.h"
#include "slot_table.h"
#include "tests/audio_playback_test.h"

#include <QObject>
#include <QTest>

#include <cstdint>

using namespace boundary;
using namespace ostra;

namespace {

struct PlaybackTestTable {
    TestTable base;
    bool (*isCancelingEvent)(void *, std::uint32_t);
    bool (*isContextValid)(void *, TestContext *);
    std::uint32_t (*execute)(void *, TestContext *);
};

class PlaybackTestProbe final : public Probe<AudioPlaybackTest> {
public:
    explicit PlaybackTestProbe(CallRecord &record) : Probe(record, someIdentity) {}
    bool isSupported(SystemComponent *component) override { return record().note("isSupported", component), true; }
    std::uint32_t run(TestContext *context) override { return record().note("run", context), 0xF0000002U; }
    bool firstFlag() override { return record().note("firstFlag"), false; }
    bool isCancelingEvent(std::uint32_t flags) override { return record().note("isCancelingEvent", flags), true; }
    bool isContextValid(TestContext *context) override { return record().note("isContextValid", context), true; }
    std::uint32_t execute(TestContext *context) override { return record().note("execute", context), 0xF000000EU; }
};

} // namespace

/// The slots that the playback test adds behind those of every test.
class TestPlaybackSlotOrder : public QObject {
    Q_OBJECT

private slots:
    void addsThreeSlotsBehindTheBase();
    void overridesTheFirstThree();
    void leavesTheOthersToTheBase();
    void destroysThroughSlotZero();
};

void TestPlaybackSlotOrder::addsThreeSlotsBehindTheBase()
{
    using P = AudioPlaybackTest;
    QCOMPARE(slotsOf(&P::isCancelingEvent, &P::isContextValid, &P::execute), QList<qsizetype>({12, 13, 14}));
    CallRecord record;
    PlaybackTestProbe probe(record);
    const auto table = tableOf<PlaybackTestTable>(&probe);
    QCOMPARE(table.isCancelingEvent(&probe, 0xFFFFFFFEU), true);
    QCOMPARE(record.take(), QByteArray("isCancelingEvent(4294967294)"));
    QCOMPARE(table.isContextValid(&probe, addressOf<TestContext>(1)), true);
    QCOMPARE(record.take(), QByteArray("isContextValid(0x7abc00000010)"));
    QCOMPARE(table.execute(&probe, addressOf<TestContext>(2)), 0xF000000EU);
    QCOMPARE(record.take(), QByteArray("execute(0x7abc00000020)"));
}

void TestPlaybackSlotOrder::overridesTheFirstThree()
{
    CallRecord record;
    PlaybackTestProbe probe(record);
    const TestTable table = tableOf<PlaybackTestTable>(&probe).base;
    QCOMPARE(table.isSupported(&probe, addressOf<SystemComponent>(1)), true);
    QCOMPARE(record.take(), QByteArray("isSupported(0x7abc00000010)"));
    QCOMPARE(table.run(&probe, addressOf<TestContext>(2)), 0xF0000002U);
    QCOMPARE(record.take(), QByteArray("run(0x7abc00000020)"));
    QCOMPARE(table.firstFlag(&probe), false);
    QCOMPARE(record.take(), QByteArray("firstFlag()"));
}

void TestPlaybackSlotOrder::leavesTheOthersToTheBase()
{
    AudioPlaybackTest test(someIdentity);
    const auto table = tableOf<TestTable>(&test);
    QVERIFY(table.firstFlag(&test));
    QVERIFY(!table.secondFlag(&test));
    QVERIFY(table.firstList(&test).empty());
    QVERIFY(table.secondList(&test).empty());
    QVERIFY(table.thirdFlag(&test));
    QVERIFY(table.fourthFlag(&test));
    QVERIFY(table.configure(&test, {{1, longText}}, 2));
    table.setOption(&test, longText);
    table.reset(&test);
}

void TestPlaybackSlotOrder::destroysThroughSlotZero()
{
    QCOMPARE(destroyedThroughBothEntries<PlaybackTestProbe>(), twoDestructions());
}

QTEST_GUILESS_MAIN(TestPlaybackSlotOrder)
#include "tst_playback_slot_order.moc"
