// SPDX-License-Identifier: Apache-2.0
#include "tests/playback_widget_wrapper.h"

#include "autotests/tests/playback_stage.h"
#include "tests/dialog/input_dialog.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

constexpr int giveUpTime = 30'000; // ms; a window may take seconds to appear under Wine

} // namespace

namespace ostra {

/// A dialog with the flags and the modality of the real one, in its place.
class AudioPlaybackTestView final : public InputDialog {
public:
    static inline std::function<void(AudioPlaybackTestView &)> whileItRuns;
    static inline QPointer<AudioPlaybackTestView> latest;
    static inline TestContext *systemEvents = nullptr;
    static inline QThread *madeOn = nullptr;

    AudioPlaybackTestView(QWidget *parent, QObject *eventFilter, std::uintptr_t /*word*/, audio::AudioComponent * /*component*/,
                          TestContext *events)
        : InputDialog(parent, eventFilter)
    {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        setWindowModality(Qt::ApplicationModal);
        latest = this;
        systemEvents = events;
        madeOn = QThread::currentThread();
        QTimer::singleShot(0, this, [this] {
            if (whileItRuns)
                whileItRuns(*this);
        });
        QTimer::singleShot(giveUpTime, this, [this] { finish(0); }); // a pass is what no test waits for
    }

    void finish(int outcome)
    {
        outcome_ = outcome;
        done(1);
    }
    int outcome() const { return outcome_; }

private:
    int outcome_ = 3;
};

template class AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView>;

} // namespace ostra

using namespace ostra;
using namespace playback;

namespace {

using Wrapper = AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView>;

class ShowCounter final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            const auto *window = qobject_cast<QWidget *>(watched);
            flagsWhenShown.append(static_cast<int>(window->windowFlags()));
        }
        return false;
    }
    QList<int> flagsWhenShown;
};

// Runs the playback test on a thread of its own, while this one handles its events.
std::uint32_t runOnAnotherThread(Stage &stage)
{
    std::uint32_t code = 99;
    const std::unique_ptr<QThread> thread(QThread::create([&] { code = stage.runWithHint(); }));
    thread->start();
    if (!QTest::qWaitFor([&] { return thread->isFinished(); }, 2 * giveUpTime))
        qFatal("the run does not end");
    return code;
}

} // namespace

class TestPlaybackWidgetWrapper : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(folder_.path())); }
    void init();
    void cleanupTestCase() { removeClips(); }
    void anOutcomeBeforeAnyExecutionIsNoPass();
    void raisesTheViewOnceAndRunsIt();
    void takesTheOutcomeAndDestroysTheView_data();
    void takesTheOutcomeAndDestroysTheView();
    void givesTheHostAsWatcherAndAsEventSource();
    void aStoppedHostEndsTheViewWithoutAVerdict();
    void escapeEndsARunWithoutAMessage();
    void aRunOnAnotherThreadTouchesWindowsOnTheGuiThreadOnly();
    void aHostMayStopARunOfAnotherThread();

private:
    QTemporaryDir folder_;
};

void TestPlaybackWidgetWrapper::init()
{
    writeClips();
    AudioPlaybackTestView::whileItRuns = [](AudioPlaybackTestView &view) { view.finish(0); };
    AudioPlaybackTestView::madeOn = nullptr;
}

void TestPlaybackWidgetWrapper::anOutcomeBeforeAnyExecutionIsNoPass()
{
    Stage stage;
    QCOMPARE(Wrapper(&stage.context, &stage.device).outcome(), 3);
}

void TestPlaybackWidgetWrapper::raisesTheViewOnceAndRunsIt()
{
    Stage stage;
    QWidget host;
    ShowCounter filter;
    bool hasParent = true;
    bool isVisible = false;
    AudioPlaybackTestView::whileItRuns = [&](AudioPlaybackTestView &view) {
        hasParent = view.parent() != nullptr;
        isVisible = view.isVisible();
        view.finish(0);
    };
    QCOMPARE(Wrapper(&stage.context, &stage.device).exec(&host, &filter), 1);
    QCOMPARE(filter.flagsWhenShown, (QList<int>{0x40803, 0x803})); // first above all others, then to run
    QVERIFY(!hasParent);
    QVERIFY(isVisible);
}

void TestPlaybackWidgetWrapper::takesTheOutcomeAndDestroysTheView_data()
{
    QTest::addColumn<int>("outcome");
    for (int outcome = 0; outcome <= 6; ++outcome)
        QTest::addRow("%d", outcome) << outcome;
}

void TestPlaybackWidgetWrapper::takesTheOutcomeAndDestroysTheView()
{
    QFETCH(int, outcome);
    Stage stage;
    AudioPlaybackTestView::whileItRuns = [outcome](AudioPlaybackTestView &view) { view.finish(outcome); };
    Wrapper wrapper(&stage.context, &stage.device);
    QCOMPARE(wrapper.exec(nullptr, nullptr), 1);
    QCOMPARE(wrapper.outcome(), outcome);
    QVERIFY(AudioPlaybackTestView::latest.isNull());
}

void TestPlaybackWidgetWrapper::givesTheHostAsWatcherAndAsEventSource()
{
    Stage stage;
    AudioPlaybackTestView::whileItRuns = [](AudioPlaybackTestView &view) {
        QTimer::singleShot(1300, &view, [&view] { view.finish(0); });
    };
    Wrapper wrapper(&stage.context, &stage.device);
    QCOMPARE(wrapper.exec(nullptr, nullptr), 1);
    QCOMPARE(stage.context.calls, Calls{"wants stop"});
    QCOMPARE(AudioPlaybackTestView::systemEvents, &stage.context);
}

void TestPlaybackWidgetWrapper::aStoppedHostEndsTheViewWithoutAVerdict()
{
    Stage stage;
    stage.context.wantsStop = true;
    AudioPlaybackTestView::whileItRuns = nullptr;
    QCOMPARE(stage.runWithHint(), 4U);
    QCOMPARE(stage.context.calls, knownUser + Calls{"wants stop"}); // no report, no message
    QVERIFY(AudioPlaybackTestView::latest.isNull());                // it does not stay on the screen
    QCOMPARE(stage.device.instructionsState(), 1);
}

void TestPlaybackWidgetWrapper::escapeEndsARunWithoutAMessage()
{
    Stage stage;
    AudioPlaybackTestView::whileItRuns = [](AudioPlaybackTestView &view) { QTest::keyClick(&view, Qt::Key_Escape); };
    QCOMPARE(stage.runWithHint(), 4U);
    QCOMPARE(stage.context.calls, knownUser);
}

void TestPlaybackWidgetWrapper::aRunOnAnotherThreadTouchesWindowsOnTheGuiThreadOnly()
{
    Stage stage(0);
    stage.context.answer = 1;
    QThread *askedOn = nullptr;
    stage.context.onWidget = [&askedOn](InputRequest &request) {
        askedOn = QThread::currentThread();
        const auto execute = [&request] { request.widget->exec(nullptr, nullptr); };
        QMetaObject::invokeMethod(qApp, execute, Qt::BlockingQueuedConnection);
    };
    AudioPlaybackTestView::whileItRuns = [](AudioPlaybackTestView &view) { view.finish(1); };
    QCOMPARE(runOnAnotherThread(stage), 1U);
    QVERIFY(askedOn != nullptr && askedOn != qApp->thread());
    QCOMPARE(AudioPlaybackTestView::madeOn, qApp->thread());
    const Calls asked{started, events, instructions, events, canReceive, dialog};
    const Calls hinted{"message " + hint + " 0 0", "report 100 " + hint};
    QCOMPARE(stage.context.calls, asked + ending(wrongKey, 2) + hinted);
    QVERIFY(AudioPlaybackTestView::latest.isNull());
}

void TestPlaybackWidgetWrapper::aHostMayStopARunOfAnotherThread()
{
    Stage stage;
    stage.context.wantsStop = true;
    stage.context.onWidget = [](InputRequest &request) {
        const auto execute = [&request] { request.widget->exec(nullptr, nullptr); };
        QMetaObject::invokeMethod(qApp, execute, Qt::BlockingQueuedConnection);
    };
    AudioPlaybackTestView::whileItRuns = nullptr;
    QCOMPARE(runOnAnotherThread(stage), 4U);
    QCOMPARE(stage.context.calls, knownUser + Calls{"wants stop"});
}

QTEST_MAIN(TestPlaybackWidgetWrapper)
#include "tst_playback_widget_wrapper.moc"
