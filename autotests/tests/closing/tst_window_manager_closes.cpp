// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/polling_host.h"
#include "autotests/tests/closing/close_request.h"
#include "autotests/tests/closing/module_stage.h"
#include "autotests/tests/closing/test_user.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace ostra;

namespace {

// Slow enough for another program to act meanwhile: a recording lasts some two seconds.
constexpr int divisor = 3;
constexpr std::chrono::seconds giveUpTime{60};
// openbox now and then misses the first key of a fresh display, though it has the dialog active; the next one it takes.
constexpr qint64 askAgainTime = 3000; // ms

class CloseCounter final : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            ++(event->spontaneous() ? fromOutside : fromInside);
        return false;
    }
    int fromOutside = 0;
    int fromInside = 0;
};

} // namespace
Q_DECLARE_METATYPE(Kind)

/// The system asks the window of a test to close: the user does not want the test any more.
class TestWindowManagerCloses : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { stopWindowManager(); }
    void endsTheTestAsNotCompleted_data();
    void endsTheTestAsNotCompleted();

private:
    ModuleStage stage_{divisor};
};

// A first dialog starts what the platform keeps for the process.
void TestWindowManagerCloses::initTestCase()
{
    startWindowManager();
    const std::uint32_t code = stage_.run(Kind::microphone, [](Test &test, SystemComponent &device) {
        PollingHost host(&device);
        host.wantsStop = true;
        return test.run(&host);
    });
    QCOMPARE(code, 4U);
    stage_.begin();
}

void TestWindowManagerCloses::endsTheTestAsNotCompleted_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("devicesBefore"); // that the dialog has opened when it is asked to close
    QTest::newRow("before anything is recorded") << Kind::microphone << 0;
    QTest::newRow("while it records") << Kind::microphone << 1;
    QTest::newRow("while it plays the recording") << Kind::microphone << 2;
    QTest::newRow("before the first digit") << Kind::playback << 0;
    QTest::newRow("between the digits") << Kind::playback << 2;
    QTest::newRow("in the second sequence") << Kind::playback << 4;
}

void TestWindowManagerCloses::endsTheTestAsNotCompleted()
{
    QFETCH(const Kind, kind);
    QFETCH(const int, devicesBefore);
    CloseCounter closes;
    std::vector<std::string> messages;
    bool gaveUp = false;
    const std::uint32_t code = stage_.run(kind, [&](Test &test, SystemComponent &device) {
        PollingHost host(&device);
        TestUser user(host, stage_.devices.sound);
        const int opened = stage_.devices.sound.openedCount;
        QTimer watch;
        QElapsedTimer sinceRequest;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            if (closes.fromOutside > 0 || (sinceRequest.isValid() && !sinceRequest.hasExpired(askAgainTime)))
                return;
            QWidget *dialog = TestUser::openDialog();
            if (dialog == nullptr || stage_.devices.sound.openedCount - opened < devicesBefore)
                return;
            user.stop();
            if (!dialog->isActiveWindow())
                return dialog->activateWindow(); // a click, where the manager was too busy to hand the keyboard over
            dialog->installEventFilter(&closes);
            requestClose(*dialog);
            sinceRequest.start();
        });
        watch.start(std::chrono::milliseconds(10));
        QTimer::singleShot(giveUpTime, &watch, [&] {
            gaveUp = true;
            host.wantsStop = true;
        });
        if (devicesBefore == 0)
            user.stop();
        const std::uint32_t result = test.run(&host);
        messages = host.messageKeys;
        return result;
    });
    QVERIFY(!gaveUp);
    QCOMPARE(closes.fromOutside, 1);
    QCOMPARE(code, 4U);
    QVERIFY2(messages.empty(), messages.empty() ? "" : messages.front().c_str());
    QCOMPARE(stage_.leftovers(), QString());
}

QTEST_MAIN(TestWindowManagerCloses)
#include "tst_window_manager_closes.moc"
