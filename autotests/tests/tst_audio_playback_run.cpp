// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/scripted_playback_view.h"
#include "autotests/tests/playback_stage.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <bit>
#include <optional>

using namespace ostra;
using namespace playback;

/// Every call of a run to the host, path by path, and the code that it ends with.
class TestAudioPlaybackRun : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void followsEveryPath_data();
    void followsEveryPath();
    void mapsEveryOutcome_data();
    void mapsEveryOutcome();
    void aDialogThatIsNeverExecutedIsNoPass();
    void bitTwoDoesNotCancel();
    void startsAfreshOnTheSecondRunAfterAnEvent();
    void anEventInTheDialogHasTheSameSequel();
    void asksAgainAfterInstructionsWereDeclined();
    void anAcceptedInstructionIsNotAskedTwice();
    void aFailureEndsWithTheHint();
    void nothingButAFailureCarriesTheHint_data();
    void nothingButAFailureCarriesTheHint();
    void givesTheDialogItsContextAndComponent();
    void nothingThatTheHostThrowsLeavesARun_data();
    void nothingThatTheHostThrowsLeavesARun();
    void aHostThatCannotTakeTheHintKeepsTheVerdict();
    void aDialogThatCannotBeBuiltIsNoVerdict();

private:
    QTemporaryDir folder_;
};

void TestAudioPlaybackRun::initTestCase() { QVERIFY(QDir::setCurrent(folder_.path())); }

void TestAudioPlaybackRun::init()
{
    writeClips();
    ScriptedView::script() = {};
}

void TestAudioPlaybackRun::cleanupTestCase() { removeClips(); }

void TestAudioPlaybackRun::followsEveryPath_data()
{
    QTest::addColumn<int>("stateBefore");
    QTest::addColumn<QList<quint32>>("pending");
    QTest::addColumn<quint32>("answer");
    QTest::addColumn<bool>("canReceiveInput");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Calls>("calls");
    QTest::addColumn<int>("stateAfter");
    const QList<quint32> none;
    const Calls asked{started, events, instructions, events};

    QTest::newRow("event before anything") << 0 << QList<quint32>{1} << 1U << true << 4U
                                           << Calls{started, events} + ending(eventKey, 0) << 2;
    QTest::newRow("highest event") << 1 << QList<quint32>{0x100} << 1U << true << 4U
                                   << Calls{started, events} + ending(eventKey, 0) << 2;
    QTest::newRow("event after acceptance")
        << 0 << QList<quint32>{0, 8} << 1U << true << 4U << asked + ending(eventKey, 0) << 2;
    QTest::newRow("event after a refusal") << 0 << QList<quint32>{0, 8} << 0U << true << 4U << asked + ending(eventKey, 0) << 2;
    QTest::newRow("event where nothing is asked")
        << 1 << QList<quint32>{0, 8} << 0U << true << 4U << Calls{started, events, events} + ending(eventKey, 0) << 2;
    QTest::newRow("instructions accepted") << 0 << none << 1U << true << 0U << asked + Calls{canReceive, dialog} << 1;
    QTest::newRow("instructions declined") << 0 << none << 0U << true << 4U << asked + Calls{canReceive, "report 100 "} << 0;
    QTest::newRow("answered 2") << 0 << none << 2U << true << 4U << asked + Calls{canReceive, "report 100 "} << 0;
    QTest::newRow("answered 7") << 0 << none << 7U << true << 4U << asked + Calls{canReceive, "report 100 "} << 0;
    QTest::newRow("answered the biggest number")
        << 0 << none << 0xFFFFFFFFU << true << 4U << asked + Calls{canReceive, "report 100 "} << 0;
    QTest::newRow("no input, not asked before") << 0 << none << 1U << false << 3U << asked + Calls{canReceive} << 1;
    QTest::newRow("no input, declined") << 0 << none << 0U << false << 3U << asked + Calls{canReceive} << 0;
    QTest::newRow("no input, accepted before")
        << 1 << none << 1U << false << 3U << Calls{started, events, events, canReceive} << 1;
    QTest::newRow("after an event") << 2 << none << 1U << true << 4U
                                    << Calls{started, events, events, canReceive, "report 100 "} << 0;
    QTest::newRow("after an odd answer") << 7 << none << 1U << true << 4U
                                         << Calls{started, events, events, canReceive, "report 100 "} << 0;
    QTest::newRow("accepted before") << 1 << none << 0U << true << 0U << knownUser << 1;
}

void TestAudioPlaybackRun::followsEveryPath()
{
    QFETCH(int, stateBefore);
    QFETCH(QList<quint32>, pending);
    QFETCH(quint32, answer);
    QFETCH(bool, canReceiveInput);
    Stage stage(stateBefore);
    stage.context.pending.assign(pending.begin(), pending.end());
    stage.context.answer = answer;
    stage.context.canReceiveInput = canReceiveInput;
    ScriptedView::script().outcome = 0;
    QTEST(stage.run(), "code");
    QTEST(stage.context.calls, "calls");
    QTEST(stage.device.instructionsState(), "stateAfter");
}

void TestAudioPlaybackRun::mapsEveryOutcome_data()
{
    QTest::addColumn<int>("outcome");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Calls>("ending");
    QTest::addColumn<int>("stateAfter");
    QTest::newRow("passed") << 0 << 0U << Calls{} << 1;
    QTest::newRow("wrong second sequence") << 1 << 1U << ending(wrongKey, 2) << 1;
    QTest::newRow("no sound heard") << 2 << 1U << ending(silentKey, 2) << 1;
    QTest::newRow("closed") << 3 << 4U << Calls{} << 1;
    QTest::newRow("no access to the device") << 4 << 4U << ending(accessKey, 2) << 1;
    QTest::newRow("event") << 5 << 4U << ending(eventKey, 0) << 2;
    QTest::newRow("unknown") << 6 << 4U << Calls{} << 1;
    QTest::newRow("negative") << -1 << 4U << Calls{} << 1;
}

void TestAudioPlaybackRun::mapsEveryOutcome()
{
    QFETCH(int, outcome);
    QFETCH(Calls, ending);
    Stage stage;
    ScriptedView::script().outcome = outcome;
    QTEST(stage.run(), "code");
    QCOMPARE(stage.context.calls, knownUser + ending);
    QTEST(stage.device.instructionsState(), "stateAfter");
}

void TestAudioPlaybackRun::aDialogThatIsNeverExecutedIsNoPass()
{
    Stage stage;
    stage.context.onWidget = nullptr;
    ScriptedView::script().outcome = 0;
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(stage.context.calls, knownUser);
}

void TestAudioPlaybackRun::bitTwoDoesNotCancel()
{
    Stage stage;
    stage.context.pending = {4, 4 | 0xFFFFFE00U};
    ScriptedView::script().outcome = 0;
    QCOMPARE(stage.run(), 0U);
}

void TestAudioPlaybackRun::startsAfreshOnTheSecondRunAfterAnEvent()
{
    Stage stage;
    stage.context.pending = {1};
    stage.context.answer = 1;
    ScriptedView::script().outcome = 0;
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(stage.context.calls, (Calls{started, events} + ending(eventKey, 0)));
    QCOMPARE(stage.device.instructionsState(), 2);

    stage.context.calls.clear();
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(stage.context.calls, (Calls{started, events, events, canReceive, "report 100 "}));
    QCOMPARE(stage.device.instructionsState(), 0);

    stage.context.calls.clear();
    QCOMPARE(stage.run(), 0U);
    QCOMPARE(stage.context.calls, (Calls{started, events, instructions, events, canReceive, dialog}));
    QCOMPARE(stage.device.instructionsState(), 1);
}

void TestAudioPlaybackRun::anEventInTheDialogHasTheSameSequel()
{
    Stage stage;
    stage.context.answer = 1;
    ScriptedView::script().outcome = 5;
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(stage.context.calls, knownUser + ending(eventKey, 0));

    stage.context.calls.clear();
    ScriptedView::script().outcome = 0;
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(stage.context.calls, (Calls{started, events, events, canReceive, "report 100 "}));
    QCOMPARE(stage.run(), 0U);
    QVERIFY(std::ranges::find(stage.context.calls, instructions) != stage.context.calls.end());
}

void TestAudioPlaybackRun::asksAgainAfterInstructionsWereDeclined()
{
    Stage stage(0);
    for (int turn = 0; turn < 2; ++turn) {
        stage.context.calls.clear();
        QCOMPARE(stage.run(), 4U);
        QCOMPARE(stage.context.calls, (Calls{started, events, instructions, events, canReceive, "report 100 "}));
    }
}

void TestAudioPlaybackRun::anAcceptedInstructionIsNotAskedTwice()
{
    Stage stage(0);
    stage.context.answer = 1;
    ScriptedView::script().outcome = 1;
    QCOMPARE(stage.run(), 1U);
    stage.context.calls.clear();
    QCOMPARE(stage.run(), 1U);
    QCOMPARE(stage.context.calls, knownUser + ending(wrongKey, 2));
}

void TestAudioPlaybackRun::aFailureEndsWithTheHint()
{
    Stage stage;
    ScriptedView::script().outcome = 2;
    QCOMPARE(stage.runWithHint(), 1U);
    // The message of the hint comes before its progress, the other way round than the test's own.
    const Calls hinted{"message " + hint + " 0 0", "report 100 " + hint};
    QCOMPARE(stage.context.calls, knownUser + ending(silentKey, 2) + hinted);
}

void TestAudioPlaybackRun::nothingButAFailureCarriesTheHint_data()
{
    QTest::addColumn<int>("outcome");
    for (const int outcome : {0, 3, 4, 5, 6})
        QTest::addRow("outcome %d", outcome) << outcome;
}

void TestAudioPlaybackRun::nothingButAFailureCarriesTheHint()
{
    QFETCH(int, outcome);
    Stage plain;
    Stage hinted;
    ScriptedView::script().outcome = outcome;
    QCOMPARE(hinted.runWithHint(), plain.run());
    QCOMPARE(hinted.context.calls, plain.context.calls);
}

void TestAudioPlaybackRun::givesTheDialogItsContextAndComponent()
{
    Stage stage;
    QObject filter;
    int result = -1;
    stage.context.onWidget = [&](InputRequest &request) { result = request.widget->exec(nullptr, &filter); };
    ScriptedView::script().outcome = 0;
    QCOMPARE(stage.run(), 0U);
    QCOMPARE(result, 1);
    const ScriptedView::Script &script = ScriptedView::script();
    QCOMPARE(script.eventFilter, &filter);
    QCOMPARE(script.component, &stage.device);
    QCOMPARE(script.systemEvents, &stage.context);
    QCOMPARE(script.watcher, &stage.context);
    QCOMPARE(script.word, std::bit_cast<std::uintptr_t>(static_cast<TestContext *>(&stage.context)));
    QCOMPARE(script.calls, (Calls{"made", "watched", "raised", "executed", "destroyed"}));
}

void TestAudioPlaybackRun::nothingThatTheHostThrowsLeavesARun_data()
{
    QTest::addColumn<int>("stateBefore");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("isSupported");
    QTest::newRow("a failure after instructions") << 0 << 1 << true;
    QTest::newRow("an event in the dialog") << 1 << 5 << true;
    QTest::newRow("no instructions") << 2 << 0 << true;
    QTest::newRow("a missing clip") << 0 << 0 << false;
}

void TestAudioPlaybackRun::nothingThatTheHostThrowsLeavesARun()
{
    QFETCH(int, stateBefore);
    QFETCH(int, outcome);
    QFETCH(bool, isSupported);
    if (!isSupported)
        QVERIFY(QFile::remove(playback::clip(9)));
    const auto run = [&](std::optional<std::size_t> throwingCall, std::uint32_t &code) {
        Stage stage(stateBefore);
        stage.context.notesServices = true;
        stage.context.answer = 1;
        stage.context.throwingCall = throwingCall;
        ScriptedView::script().outcome = outcome;
        code = stage.run();
        return stage.context.calls;
    };
    std::uint32_t code = 0;
    const Calls all = run(std::nullopt, code);
    QVERIFY(all.size() > 8);
    for (std::size_t call = 0; call < all.size(); ++call) {
        const Calls made = run(call, code);
        QVERIFY2(code == 4U, all[call].c_str());
        QCOMPARE(made, Calls(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(call) + 1)); // it was the last call
    }
}

void TestAudioPlaybackRun::aHostThatCannotTakeTheHintKeepsTheVerdict()
{
    ScriptedView::script().outcome = 1;
    const std::size_t callsBeforeTheHint = knownUser.size() + 2;
    for (const std::size_t later : {0U, 1U}) {
        Stage stage;
        stage.context.throwingCall = callsBeforeTheHint + later;
        QCOMPARE(stage.runWithHint(), 1U);
        QCOMPARE(stage.context.calls.size(), callsBeforeTheHint + later + 1);
    }
}

void TestAudioPlaybackRun::aDialogThatCannotBeBuiltIsNoVerdict()
{
    Stage stage;
    int result = -1;
    stage.context.onWidget = [&](InputRequest &request) { result = request.widget->exec(nullptr, nullptr); };
    ScriptedView::script().outcome = 0;
    ScriptedView::script().throws = true;
    QCOMPARE(stage.run(), 4U);
    QCOMPARE(result, 0);
    QCOMPARE(stage.context.calls, knownUser);
}

QTEST_GUILESS_MAIN(TestAudioPlaybackRun)
#include "tst_audio_playback_run.moc"
