// SPDX-License-Identifier: Apache-2.0
#include "tests/audio_widget_wrapper.h"

#include "autotests/support/refusing_allocator.h"
#include "autotests/tests/microphone_host.h"
#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"
#include "autotests/views/throwing_host.h"

#include <QCloseEvent>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

using namespace ostra;

namespace {

constexpr int bound = 10000; // ms; the watcher is asked once a second

struct Stage {
    FakeSound sound;
    MicrophoneHost host;
    std::shared_ptr<AudioWidgetWrapper> wrapper = makeAudioWidgetWrapper(QStringLiteral("Speakers"), host);
    QPointer<InteractionDialog> dialog;

    int resultOf(const std::function<void()> &action)
    {
        QTimer::singleShot(0, wrapper.get(), [this, action] {
            dialog = MicrophoneHost::dialog();
            action();
        });
        return wrapper->exec(nullptr, nullptr);
    }
};

std::atomic<std::thread::id> starving;

// Every allocation of the starving thread is refused, none of the others.
bool isOfTheStarvingThread()
{
    if (std::this_thread::get_id() != starving)
        return false;
    refusing_allocator::allocationsUntilFailure = 0;
    return true;
}

void letGoWithoutMemory(std::shared_ptr<AudioWidgetWrapper> &wrapper)
{
    starving = std::this_thread::get_id();
    refusing_allocator::choice = &isOfTheStarvingThread;
    refusing_allocator::allocationsUntilFailure = 0;
    wrapper.reset();
    starving = std::thread::id();
    refusing_allocator::allocationsUntilFailure = -1;
    refusing_allocator::choice = nullptr;
}

void deletePosted() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

class TestAudioWidgetWrapper : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void declaresOneSignal();
    void startsAsCancelled();
    void keepsResultAndFlags_data();
    void keepsResultAndFlags();
    void raisesTheWindowOnce();
    void deletesADialogThatFinished();
    void deletesADialogOnce();
    void leavesADialogThatTheWatcherStopped();
    void closeDialogClosesWhatTheWatcherLeft();
    void closeDialogEndsTheLoop();
    void closeDialogLeavesAResultAlone();
    void closeDialogWithoutADialogDoesNothing();
    void closeDialogWorksFromAnotherThread();
    void withoutMemoryItStillTakesItsDialogAlong();
    void withoutMemoryItOutlivesADialogThatGoesByItself();
    void aDialogThatGoesDoesNotComeBackToTheWrapper();
    void aDialogDestroyedInItsLoopIsNoPass();
    void theEndOfTheApplicationIsNoPass_data();
    void theEndOfTheApplicationIsNoPass();
    void aCloseByTheUserIsNoPass();
    void anEventBeforeTheLoopIsNoPass();
    void livesInTheApplicationsThread();
    void givesTheDialogItsWatcherAndEvents();
    void aListenerThatIsFirstKeepsNoEndFromIt();
};

void TestAudioWidgetWrapper::cleanup()
{
    deletePosted();
    QVERIFY(MicrophoneHost::dialog() == nullptr);
}

void TestAudioWidgetWrapper::declaresOneSignal()
{
    QCOMPARE(page_probe::ownMethods(AudioWidgetWrapper::staticMetaObject), QByteArrayList{"signal CloseDialog()"});
}

void TestAudioWidgetWrapper::startsAsCancelled()
{
    Stage stage;
    QCOMPARE(stage.wrapper->outcome(), 2);
    QVERIFY(!stage.wrapper->deviceLost() && !stage.wrapper->internalError());
}

void TestAudioWidgetWrapper::keepsResultAndFlags_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("isLost");
    QTest::addColumn<bool>("hasError");
    QTest::newRow("finished") << QByteArray("Finish") << 1 << false << false;
    QTest::newRow("cancelled") << QByteArray("Cancel") << 2 << false << false;
    QTest::newRow("closed") << QByteArray("Close") << 5 << false << false;
    QTest::newRow("aborted") << QByteArray("Abort") << 5 << false << true;
    QTest::newRow("disconnected") << QByteArray("AbortDeviceDisconnected") << 5 << true << false;
    QTest::newRow("closed by a program") << QByteArray("close") << 0 << false << false;
}

void TestAudioWidgetWrapper::keepsResultAndFlags()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const int, outcome);
    Stage stage;
    QCOMPARE(stage.resultOf([&] { QVERIFY(QMetaObject::invokeMethod(stage.dialog, slot.constData())); }), outcome);
    QCOMPARE(stage.wrapper->outcome(), outcome);
    QTEST(stage.wrapper->deviceLost(), "isLost");
    QTEST(stage.wrapper->internalError(), "hasError");
}

void TestAudioWidgetWrapper::raisesTheWindowOnce()
{
    Stage stage;
    stage.resultOf([&] {
        QCOMPARE(stage.dialog->windowFlags().toInt(), 0x803); // on top while it is raised only
        stage.dialog->Cancel();
    });
}

void TestAudioWidgetWrapper::deletesADialogThatFinished()
{
    Stage stage;
    stage.resultOf([&] { stage.dialog->Finish(); });
    deletePosted();
    QVERIFY(stage.dialog.isNull());
    QVERIFY(!stage.wrapper->hasDialog());
}

void TestAudioWidgetWrapper::deletesADialogOnce()
{
    Stage stage;
    int destroyedCount = 0;
    stage.resultOf([&] {
        connect(stage.dialog, &QObject::destroyed, this, [&] { ++destroyedCount; });
        stage.dialog->close(); // result 0: closeDialog() closes it again
    });
    stage.wrapper->closeDialog();
    stage.wrapper->closeDialog();
    stage.wrapper.reset();
    deletePosted();
    QCOMPARE(destroyedCount, 1);
}

void TestAudioWidgetWrapper::leavesADialogThatTheWatcherStopped()
{
    Stage stage;
    QCOMPARE(stage.resultOf([&] { stage.host.wantsToStop = true; }), 0);
    deletePosted();
    QVERIFY(!stage.dialog.isNull());
    QVERIFY(stage.dialog->isVisible());
    stage.wrapper.reset();
    QVERIFY2(stage.dialog.isNull(), "the last owner takes it along");
}

void TestAudioWidgetWrapper::closeDialogClosesWhatTheWatcherLeft()
{
    Stage stage;
    stage.resultOf([&] { stage.host.wantsToStop = true; });
    QSignalSpy told(stage.wrapper.get(), &AudioWidgetWrapper::CloseDialog);
    stage.wrapper->closeDialog();
    QCOMPARE(told.size(), 1);
    QVERIFY(!stage.dialog->isVisible());
    deletePosted();
    QVERIFY(stage.dialog.isNull());
}

void TestAudioWidgetWrapper::closeDialogEndsTheLoop()
{
    Stage stage;
    QCOMPARE(stage.resultOf([&] { stage.wrapper->closeDialog(); }), 0);
}

void TestAudioWidgetWrapper::closeDialogLeavesAResultAlone()
{
    Stage stage;
    stage.resultOf([&] { stage.dialog->Finish(); });
    stage.wrapper->closeDialog();
    QVERIFY(!stage.dialog.isNull());
    QCOMPARE(stage.dialog->result(), 1);
}

void TestAudioWidgetWrapper::closeDialogWithoutADialogDoesNothing()
{
    Stage stage;
    QSignalSpy told(stage.wrapper.get(), &AudioWidgetWrapper::CloseDialog);
    stage.wrapper->closeDialog();
    QCOMPARE(told.size(), 0);
}

void TestAudioWidgetWrapper::closeDialogWorksFromAnotherThread()
{
    Stage stage;
    std::thread other;
    const int result = stage.resultOf([&] { other = std::thread([&] { stage.wrapper->closeDialog(); }); });
    other.join();
    QCOMPARE(result, 0);
}

void TestAudioWidgetWrapper::withoutMemoryItStillTakesItsDialogAlong()
{
    Stage stage;
    stage.resultOf([&] { stage.host.wantsToStop = true; });
    QVERIFY(!stage.dialog.isNull());
    const QPointer<AudioWidgetWrapper> wrapper(stage.wrapper.get());
    std::thread other([&] { letGoWithoutMemory(stage.wrapper); });
    QTRY_VERIFY_WITH_TIMEOUT(stage.dialog.isNull() && wrapper.isNull(), bound);
    other.join();
}

void TestAudioWidgetWrapper::withoutMemoryItOutlivesADialogThatGoesByItself()
{
    Stage stage;
    stage.resultOf([&] { stage.host.wantsToStop = true; });
    const QPointer<AudioWidgetWrapper> wrapper(stage.wrapper.get());
    const std::shared_ptr<DialogLink> link = wrapper->link();
    std::thread other([&] { letGoWithoutMemory(stage.wrapper); });
    while (link->released == nullptr) // no event of the dialog is handled meanwhile
        std::this_thread::yield();
    delete stage.dialog;
    other.join();
    QVERIFY(wrapper.isNull());
}

// It would come back to one that the thread of the run deletes at that moment.
void TestAudioWidgetWrapper::aDialogThatGoesDoesNotComeBackToTheWrapper()
{
    Stage stage;
    stage.resultOf([&] { stage.host.wantsToStop = true; });
    QVERIFY(!disconnect(stage.dialog, &QObject::destroyed, stage.wrapper.get(), nullptr));
    bool wasThereWhenItWent = true;
    connect(stage.dialog, &QObject::destroyed, this, [&] {
        wasThereWhenItWent = stage.wrapper->hasDialog();
        stage.wrapper.reset(); // as the thread of the run does
    });
    delete stage.dialog;
    QVERIFY(!wasThereWhenItWent);
}

void TestAudioWidgetWrapper::aDialogDestroyedInItsLoopIsNoPass()
{
    Stage stage;
    QCOMPARE(stage.resultOf([&] { stage.dialog->deleteLater(); }), 2);
    QCOMPARE(stage.wrapper->outcome(), 2);
    QVERIFY(!stage.wrapper->hasDialog());
}

void TestAudioWidgetWrapper::theEndOfTheApplicationIsNoPass_data()
{
    QTest::addColumn<bool>("isExit");
    QTest::newRow("quit") << false;
    QTest::newRow("exit") << true; // ends the loops without closing windows
}

void TestAudioWidgetWrapper::theEndOfTheApplicationIsNoPass()
{
    QFETCH(const bool, isExit);
    Stage stage;
    QTimer::singleShot(0, stage.wrapper.get(), [&] {
        stage.resultOf([&] {
            if (isExit)
                QCoreApplication::exit(0);
            else
                QCoreApplication::quit();
        });
    });
    QCoreApplication::exec(); // without its loop an application has no end
    QVERIFY2(stage.wrapper->outcome() == 2 || stage.wrapper->outcome() == 5,
             qPrintable(QString::number(stage.wrapper->outcome())));
    QVERIFY(stage.dialog.isNull() || !stage.dialog->isVisible());
}

void TestAudioWidgetWrapper::aCloseByTheUserIsNoPass()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        QCloseEvent event;
        page_probe::sendSpontaneously(*stage.dialog, event);
    });
    QCOMPARE(result, 5);
}

void TestAudioWidgetWrapper::anEventBeforeTheLoopIsNoPass()
{
    Stage stage;
    stage.host.flags = 1;
    const int result = stage.wrapper->exec(nullptr, nullptr);                  // does not wait for a dialog that has finished
    QVERIFY2(result == 2 || result == 0, qPrintable(QString::number(result))); // the test cancels either way
    QVERIFY(MicrophoneHost::dialog() == nullptr || !MicrophoneHost::dialog()->isVisible());
}

void TestAudioWidgetWrapper::livesInTheApplicationsThread()
{
    const FakeSound sound;
    MicrophoneHost host;
    QThread *thread = nullptr;
    std::thread other([&] {
        const std::shared_ptr<AudioWidgetWrapper> wrapper = makeAudioWidgetWrapper(QStringLiteral("Speakers"), host);
        thread = wrapper->thread();
    });
    other.join();
    QCOMPARE(thread, qApp->thread());
}

void TestAudioWidgetWrapper::givesTheDialogItsWatcherAndEvents()
{
    Stage stage;
    stage.resultOf([&] {
        stage.host.flags = 1; // asked for by the dialog's timer
    });
    QVERIFY(!stage.dialog || !stage.dialog->isVisible());
    Stage other;
    QTimer late;
    connect(&late, &QTimer::timeout, this, [&] { other.dialog->Cancel(); });
    late.start(bound);
    QCOMPARE(other.resultOf([&] { other.host.wantsToStop = true; }), 0);
}

// It hears of the end before the wrapper does, and keeps it from it both times.
void TestAudioWidgetWrapper::aListenerThatIsFirstKeepsNoEndFromIt()
{
    Stage stage;
    throwing_host::FirstListener first;
    bool hasComeOut = false;
    QTimer::singleShot(0, stage.wrapper.get(), [&] {
        hasComeOut = throwing_host::comesOut([] { MicrophoneHost::dialog()->AbortDeviceDisconnected(); });
    });
    QCOMPARE(stage.wrapper->exec(nullptr, &first), 5);
    QVERIFY(!hasComeOut);
    QCOMPARE(first.toldCount(), 2);
    QVERIFY(stage.wrapper->deviceLost());
}

QTEST_MAIN(TestAudioWidgetWrapper)
#include "tst_audio_widget_wrapper.moc"
