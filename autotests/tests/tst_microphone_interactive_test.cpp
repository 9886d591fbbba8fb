// SPDX-License-Identifier: Apache-2.0
#include "tests/microphone_interactive_test.h"

#include "audio/audio_component.h"
#include "autotests/tests/microphone_host.h"
#include "autotests/views/fake_sound.h"
#include "module/device_hints.h"
#include "module/test_with_device_hint.h"
#include "views/record_audio.h"

#include <QEvent>
#include <QObject>
#include <QTest>

#include <atomic>
#include <future>
#include <memory>
#include <thread>

using namespace ostra;

namespace {

const EntityId identity(15, 1, 2);

constexpr const char *cancelKey = "TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED";
constexpr const char *lostKey =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";
constexpr const char *internalKey = "AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.";

const QByteArray dialogCall = "dialog | 1 3 0";
const QByteArray questionCall = "question MICROPHONE_INTERACTIVE_TEST|DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED 5 2 0";

QByteArrayList ending(const char *key) { return {QByteArray("report 100 ") + key, QByteArray("message ") + key + " 0 0"}; }

const QByteArrayList beginning{"events", "can receive", dialogCall, "events"};
const QByteArrayList end{"report 100 "};

using Action = void (*)(MicrophoneHost &, InteractionDialog &);

void finish(MicrophoneHost &, InteractionDialog &dialog) { dialog.Finish(); }
void cancel(MicrophoneHost &, InteractionDialog &dialog) { dialog.Cancel(); }
void close(MicrophoneHost &, InteractionDialog &dialog) { dialog.Close(); }
void abortIt(MicrophoneHost &, InteractionDialog &dialog) { dialog.Abort(); }
void loseDevice(MicrophoneHost &, InteractionDialog &dialog) { dialog.AbortDeviceDisconnected(); }
void closeByProgram(MicrophoneHost &, InteractionDialog &dialog) { dialog.close(); }
void raiseEvent(MicrophoneHost &host, InteractionDialog &) { host.flags = 0x8; }
void stopByWatcher(MicrophoneHost &host, InteractionDialog &) { host.wantsToStop = true; }

} // namespace
Q_DECLARE_METATYPE(Action)

class TestMicrophoneInteractiveTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void keepsItsIdentityAndFlags();
    void supportsAudioDevicesWhileThereIsAMicrophone();
    void callsTheHostInOrder_data();
    void callsTheHostInOrder();
    void anEventBeforeTheStartEndsItAtOnce_data();
    void anEventBeforeTheStartEndsItAtOnce();
    void eventsOutsideTheMaskAreIgnored();
    void withoutInputItCannotBePerformed();
    void withoutAMicrophoneItIsNotCompleted();
    void withoutAServiceItSaysNothing_data();
    void withoutAServiceItSaysNothing();
    void worksWithoutAComponent();
    void handsTheDeviceTextToTheDialog();
    void aHostThatShowsNothingIsNoPass();
    void aNoGainsTheDeviceHint();
    void leavesNoDialogBehind_data();
    void leavesNoDialogBehind();
    void runsOnAnotherThread();
    void lettingGoEndsWhatTheWatcherLeftRunning();
};

void TestMicrophoneInteractiveTest::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(MicrophoneHost::dialog() == nullptr);
}

void TestMicrophoneInteractiveTest::keepsItsIdentityAndFlags()
{
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.identity().key, identity.key);
    QVERIFY(test.firstFlag());
    QVERIFY(!test.secondFlag());
    QVERIFY(test.thirdFlag() && test.fourthFlag());
    QVERIFY(test.firstList().empty() && test.secondList().empty());
}

void TestMicrophoneInteractiveTest::supportsAudioDevicesWhileThereIsAMicrophone()
{
    FakeSound sound;
    MicrophoneInteractiveTest test(identity);
    audio::AudioComponent device("Speakers");
    class Other final : public SystemComponent {
    public:
        Other() : SystemComponent("Speakers") {}
        void *reserved4() override { return nullptr; }
        bool reserved5() override { return true; }
        bool reserved6() override { return true; }
        void reserved7() override {}
        bool reserved8() override { return true; }
        void reserved9() override {}
    } other;
    QVERIFY(test.isSupported(&device));
    QVERIFY(!test.isSupported(&other));
    QVERIFY(!test.isSupported(nullptr));
    sound.microphones.clear();
    QVERIFY(!test.isSupported(&device));
}

void TestMicrophoneInteractiveTest::callsTheHostInOrder_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<bool>("wantsToStop");
    QTest::addColumn<quint32>("answer");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QByteArrayList>("calls");
    const auto row = [](const char *name, Action action, bool wantsToStop, quint32 answer, quint32 code,
                        const QByteArrayList &calls) {
        QTest::newRow(name) << action << wantsToStop << answer << code << beginning + calls;
    };
    const QByteArrayList stop{"stop?"};
    const QByteArrayList question{questionCall};
    row("heard, yes", &finish, false, 3, 0, stop + question + end);
    row("heard, no", &finish, false, 4, 1, stop + question + end);
    row("heard, question dismissed", &finish, false, 0, 0, stop + question + end);
    row("heard, another answer", &finish, false, 7, 0, stop + question + end);
    row("heard, the host stops, yes", &finish, true, 3, 0, stop + stop + end + question + end);
    row("heard, the host stops, no", &finish, true, 4, 1, stop + stop + end + question + end);
    row("heard, the host stops, dismissed", &finish, true, 0, 4, stop + stop + end + question + end);
    row("closed by a program", &closeByProgram, false, 0, 0, stop + end);
    row("closed by a program, the host stops", &closeByProgram, true, 0, 4, stop + stop + end + end);
    row("stopped by the watcher", &stopByWatcher, false, 0, 4, stop + stop + end + end);
    row("cancelled", &cancel, false, 0, 4, stop + end);
    row("cancelled, the host stops", &cancel, true, 0, 4, stop + end + end);
    row("closed by the user", &close, false, 0, 4, stop + end);
    row("device lost", &loseDevice, false, 0, 4, ending(lostKey) + end);
    row("device lost, the host stops", &loseDevice, true, 0, 4, ending(lostKey) + end);
    row("internal error", &abortIt, false, 0, 4, ending(internalKey) + end);
    row("an event during the dialog", &raiseEvent, false, 0, 4, ending(cancelKey));
    row("an event during the dialog, the host stops", &raiseEvent, true, 0, 4, ending(cancelKey));
}

void TestMicrophoneInteractiveTest::callsTheHostInOrder()
{
    QFETCH(const Action, action);
    QFETCH(const QByteArrayList, calls);
    const FakeSound sound;
    audio::AudioComponent device("Speakers");
    MicrophoneHost host;
    host.device = &device;
    // At the end of the dialog: while it runs, the host's wish would be the watcher's.
    QFETCH(const bool, wantsToStop);
    QFETCH(const quint32, answer);
    host.answer = answer;
    host.action = [&](InteractionDialog &dialog) {
        host.wantsToStop = wantsToStop;
        action(host, dialog);
    };
    MicrophoneInteractiveTest test(identity);
    const std::uint32_t code = test.run(&host);
    QCOMPARE(host.calls.join("\n"), calls.join("\n"));
    QTEST(quint32{code}, "code");
}

void TestMicrophoneInteractiveTest::anEventBeforeTheStartEndsItAtOnce_data()
{
    QTest::addColumn<quint32>("flags");
    for (const quint32 bit : {0U, 1U, 3U, 4U, 5U, 6U, 7U, 8U})
        QTest::addRow("bit %u", bit) << (1U << bit);
    QTest::newRow("several") << 0xFFFFU;
}

void TestMicrophoneInteractiveTest::anEventBeforeTheStartEndsItAtOnce()
{
    QFETCH(const quint32, flags);
    const FakeSound sound;
    MicrophoneHost host;
    host.flags = flags;
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 4U);
    QCOMPARE(host.calls, QByteArrayList{"events"} + ending(cancelKey));
}

void TestMicrophoneInteractiveTest::eventsOutsideTheMaskAreIgnored()
{
    const FakeSound sound;
    MicrophoneHost host;
    host.flags = 4U | 0x200U | 0x80000000U;
    host.answer = 3;
    host.action = [&](InteractionDialog &dialog) { dialog.Finish(); };
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 0U);
    QVERIFY(host.calls.contains(questionCall));
}

void TestMicrophoneInteractiveTest::withoutInputItCannotBePerformed()
{
    const FakeSound sound;
    MicrophoneHost host;
    host.canReceive = false;
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 3U);
    QCOMPARE(host.calls, (QByteArrayList{"events", "can receive"} +
                          ending("THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT")));
}

void TestMicrophoneInteractiveTest::withoutAMicrophoneItIsNotCompleted()
{
    FakeSound sound;
    sound.microphones.clear();
    MicrophoneHost host;
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 4U);
    QCOMPARE(host.calls, (QByteArrayList{"events", "can receive"} + ending("NO_INPUT_DEVICE")));
}

void TestMicrophoneInteractiveTest::withoutAServiceItSaysNothing_data()
{
    QTest::addColumn<int>("missing");
    QTest::newRow("context") << 0;
    QTest::newRow("reporter") << 1;
    QTest::newRow("messages") << 2;
    QTest::newRow("events") << 3;
}

void TestMicrophoneInteractiveTest::withoutAServiceItSaysNothing()
{
    QFETCH(const int, missing);
    const FakeSound sound;
    MicrophoneHost host;
    host.hasReporter = missing != 1;
    host.hasMessages = missing != 2;
    host.hasEvents = missing != 3;
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(missing == 0 ? nullptr : &host), 4U);
    QVERIFY(host.calls.isEmpty());
}

void TestMicrophoneInteractiveTest::worksWithoutAComponent()
{
    const FakeSound sound;
    MicrophoneHost host;
    host.action = [](InteractionDialog &dialog) { dialog.Cancel(); };
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 4U);
}

void TestMicrophoneInteractiveTest::handsTheDeviceTextToTheDialog()
{
    FakeSound sound;
    sound.outputs = {"Headphones"};
    audio::AudioComponent device("Headphones");
    MicrophoneHost host;
    host.device = &device;
    host.action = [](InteractionDialog &dialog) {
        dialog.CheckMicrophoneConnection(4); // the play page
        if (!dialog.hasFinished())
            dialog.Cancel();
    };
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 4U);
    QVERIFY2(!host.calls.join("").contains(lostKey), "the device is there under its own text");
}

void TestMicrophoneInteractiveTest::aHostThatShowsNothingIsNoPass()
{
    const FakeSound sound;
    MicrophoneHost host;
    host.runsDialogs = false;
    MicrophoneInteractiveTest test(identity);
    QCOMPARE(test.run(&host), 4U);
    QCOMPARE(host.calls, beginning + QByteArrayList{"stop?"} + end);
}

void TestMicrophoneInteractiveTest::aNoGainsTheDeviceHint()
{
    const FakeSound sound;
    MicrophoneHost host;
    host.answer = 4;
    host.action = [](InteractionDialog &dialog) { dialog.Finish(); };
    TestWithDeviceHint<MicrophoneInteractiveTest> test(identity, microphoneHint());
    QCOMPARE(test.run(&host), 1U);
    const QByteArray hint = "POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE, CAMERA_MICROPHONE_MODULE, SPEAKERS";
    QCOMPARE(host.calls.mid(host.calls.size() - 2), (QByteArrayList{"message " + hint + " 0 0", "report 100 " + hint}));
}

void TestMicrophoneInteractiveTest::leavesNoDialogBehind_data()
{
    QTest::addColumn<Action>("action");
    QTest::newRow("finished") << Action(&finish);
    QTest::newRow("cancelled") << Action(&cancel);
    QTest::newRow("closed by a program") << Action(&closeByProgram);
    QTest::newRow("event") << Action(&raiseEvent);
    QTest::newRow("watcher") << Action(&stopByWatcher);
}

void TestMicrophoneInteractiveTest::leavesNoDialogBehind()
{
    QFETCH(const Action, action);
    const FakeSound sound;
    MicrophoneHost host;
    host.action = [&](InteractionDialog &dialog) { action(host, dialog); };
    MicrophoneInteractiveTest test(identity);
    test.run(&host);
    QVERIFY2(MicrophoneHost::dialog() == nullptr, "it would ask a host that is gone");
}

void TestMicrophoneInteractiveTest::runsOnAnotherThread()
{
    // A host that runs tests on a thread of its own and dialogs on the GUI thread.
    class Marshal final : public TestContext {
    public:
        explicit Marshal(MicrophoneHost &host) : host_(host), reporter_(host) {}
        SystemComponent *component() override { return host_.component(); }
        MessageSink *messages() override { return host_.messages(); }
        ProgressReporter *reporter() override { return &reporter_; }
        void reserved4() override {}
        bool continueOnOutcome() override { return host_.continueOnOutcome(); }
        EventSource *events() override { return host_.events(); }

    private:
        class Reporter final : public ProgressReporter {
        public:
            explicit Reporter(MicrophoneHost &host) : host_(host) {}
            void report(std::uint32_t percent, std::string text) override
            {
                host_.reporter()->report(percent, std::move(text));
            }
            void requestInput(InputRequest *request) override
            {
                // Qt's own blocking call hands over by a semaphore that ThreadSanitizer does not see.
                std::promise<void> shown;
                const auto show = [&] {
                    host_.reporter()->requestInput(request);
                    shown.set_value();
                };
                QMetaObject::invokeMethod(qApp, show, Qt::QueuedConnection);
                shown.get_future().wait();
            }
            void reserved3() override {}
            bool canReceiveInput() override { return host_.reporter()->canReceiveInput(); }

        private:
            MicrophoneHost &host_;
        };
        MicrophoneHost &host_;
        Reporter reporter_;
    };
    const FakeSound sound;
    MicrophoneHost host;
    host.action = [&](InteractionDialog &) { host.wantsToStop = true; }; // leaves the dialog open for the test to close
    Marshal context(host);
    std::uint32_t code = 99;
    std::atomic<bool> isDone = false;
    std::thread runner([&] {
        MicrophoneInteractiveTest test(identity);
        code = test.run(&context);
        isDone = true;
    });
    QTRY_VERIFY_WITH_TIMEOUT(isDone.load(), 15000);
    runner.join();
    QCOMPARE(code, 4U);
    QVERIFY(MicrophoneHost::dialog() == nullptr);
}

void TestMicrophoneInteractiveTest::lettingGoEndsWhatTheWatcherLeftRunning()
{
    FakeSound sound;
    MicrophoneHost host;
    host.action = [&](InteractionDialog &dialog) {
        dialog.goToNextWidget();
        auto *page = dialog.findChild<RecordAudio *>();
        if (page != nullptr)
            page->OnBtnRecordClicked();
        host.wantsToStop = true;
    };
    MicrophoneInteractiveTest test(identity);
    test.run(&host);
    QCOMPARE(sound.openedCount.load(), sound.closedCount.load());
}

QTEST_MAIN(TestMicrophoneInteractiveTest)
#include "tst_microphone_interactive_test.moc"
