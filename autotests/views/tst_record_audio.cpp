// SPDX-License-Identifier: Apache-2.0
#include "views/record_audio.h"

#include "audio/abandoned_workers.h"
#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLCDNumber>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

using namespace ostra;
using page_probe::named;

namespace {

constexpr int bound = 5000; // ms; a fake worker ends within 5

struct Stage {
    std::shared_ptr<audio::RecordingSlot> slot = std::make_shared<audio::RecordingSlot>();
    RecordAudio page{slot};
    QSignalSpy next{&page, &RecordAudio::NextWidget};
    QSignalSpy cancelled{&page, &RecordAudio::CancelTest};
    QSignalSpy aborted{&page, &RecordAudio::AbortTest};
    QSignalSpy disconnected{&page, &RecordAudio::DisconnectedDevice};

    QPushButton &record() { return *named<QPushButton>(page, "microphone_test_record_button"); }
    QPushButton &cancel() { return *named<QPushButton>(page, "microphone_test_cancel_button"); }
    QLCDNumber &lcd() { return *named<QLCDNumber>(page, "microphone_test_lcd_numbers"); }
    void tick(int count = 1)
    {
        for (int done = 0; done < count; ++done)
            page.OnTimerTick();
    }
    QString told() const
    {
        return QStringLiteral("%1 next, %2 cancelled, %3 aborted, %4 disconnected")
            .arg(next.size())
            .arg(cancelled.size())
            .arg(aborted.size())
            .arg(disconnected.size());
    }
};

const QString nothing = QStringLiteral("0 next, 0 cancelled, 0 aborted, 0 disconnected");
const QString wentOn = QStringLiteral("1 next, 0 cancelled, 0 aborted, 0 disconnected");
const QString wasCancelled = QStringLiteral("0 next, 1 cancelled, 0 aborted, 0 disconnected");
const QString wasAborted = QStringLiteral("0 next, 0 cancelled, 1 aborted, 0 disconnected");
const QString lostItsDevice = QStringLiteral("0 next, 0 cancelled, 0 aborted, 1 disconnected");

} // namespace

class TestRecordAudio : public QObject {
    Q_OBJECT

private slots:
    void declaresItsSignalsAndSlotsInOrder();
    void hasTheNamesOfItsForm();
    void showsTheKeysOfItsTexts();
    void startsAtZeroSecondsWithTheButtonEnabled();
    void keepsTheDeviceName();
    void recordsFromTheChosenDevice();
    void disablesTheButtonWhileItRecords();
    void stopsAfterTheSixthTickAndGoesOnWithTheSeventh();
    void neverShowsMoreThanFiveSeconds();
    void goesOnOnlyWithTheNextTick();
    void tellsHowAWorkerEnded_data();
    void tellsHowAWorkerEnded();
    void cancelWhileNothingRunsIsToldAtOnce();
    void cancelWhileItRecordsCancels();
    void cancelAfterTheRecordingHasEndedGoesOn();
    void cancelDoesNotHideALostDevice();
    void cancelTurnsAFailureIntoACancel();
    void aDeviceThatCannotBeOpenedIsLost();
    void aDeviceThatVanishesIsLost();
    void aSecondRecordingIsNotStartedWhileOneRuns();
    void destructionStopsTheRecording();
    void destructionDoesNotWaitForTheReport();
    void aWorkerThatDoesNotEndIsLeftToItself();
    void noButtonIsADefaultOne();
    void screenReadersHearTheSeconds();
};

void TestRecordAudio::declaresItsSignalsAndSlotsInOrder()
{
    const QByteArrayList expected{"signal NextWidget()",         "signal CancelTest()",           "signal AbortTest()",
                                  "signal DisconnectedDevice()", "slot set_device_name(QString)", "slot set_result_status(int)",
                                  "slot OnBtnCancelClicked()",   "slot OnBtnRecordClicked()",     "slot OnTimerTick()"};
    QCOMPARE(page_probe::ownMethods(RecordAudio::staticMetaObject), expected);
    QCOMPARE(RecordAudio::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void TestRecordAudio::hasTheNamesOfItsForm()
{
    Stage stage;
    QCOMPARE(stage.page.objectName(), QStringLiteral("RecordAudio"));
    const QStringList tree = page_probe::namedTree(stage.page);
    for (const char *name : {"verticalLayout QVBoxLayout", "horizontalLayout_4 QHBoxLayout",
                             "microphone_test_record_message QLabel", "horizontalLayout_3 QHBoxLayout",
                             "microphone_test_record_button QPushButton", "microphone_test_lcd_numbers QLCDNumber",
                             "horizontalLayout QHBoxLayout", "microphone_test_cancel_button QPushButton"})
        QVERIFY2(tree.contains(QLatin1String(name)), name);
    QVERIFY(!tree.contains(QStringLiteral("microphone_test_next_button QPushButton")));
}

void TestRecordAudio::showsTheKeysOfItsTexts()
{
    Stage stage;
    QCOMPARE(named<QLabel>(stage.page, "microphone_test_record_message")->text(),
             QStringLiteral("PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE"));
    QCOMPARE(stage.record().text(), QStringLiteral("RECORD"));
    QCOMPARE(stage.cancel().text(), QStringLiteral("CANCEL"));
}

void TestRecordAudio::startsAtZeroSecondsWithTheButtonEnabled()
{
    Stage stage;
    QVERIFY(page_probe::shows(stage.lcd(), QStringLiteral("00:00")));
    QVERIFY(stage.record().isEnabled());
}

void TestRecordAudio::keepsTheDeviceName()
{
    Stage stage;
    stage.page.set_device_name(QStringLiteral("Mic B"));
    QCOMPARE(stage.page.deviceName(), QStringLiteral("Mic B"));
    QCOMPARE(stage.told(), nothing);
}

void TestRecordAudio::recordsFromTheChosenDevice()
{
    FakeSound sound;
    Stage stage;
    stage.page.set_device_name(QStringLiteral("Mic B"));
    stage.record().click();
    stage.tick(6);
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
    stage.tick();
    QCOMPARE(stage.told(), wentOn);
    QVERIFY(stage.slot->recording != nullptr);
    QCOMPARE(stage.slot->recording->seconds, std::uint16_t{5});
    QCOMPARE(sound.openedNames(), std::vector<std::string>{"Mic B 1"});
}

void TestRecordAudio::disablesTheButtonWhileItRecords()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    QVERIFY(!stage.record().isEnabled());
    QVERIFY(stage.cancel().isEnabled());
}

void TestRecordAudio::stopsAfterTheSixthTickAndGoesOnWithTheSeventh()
{
    FakeSound sound;
    Stage stage;
    stage.record().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.tick(5);
    QVERIFY2(!QSignalSpy(&stage.page, &RecordAudio::NextWidget).wait(100) && stage.page.job().isBusy(),
             "five are not too many");
    stage.tick();
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), 500); // before the page's own timer adds another tick
    QCOMPARE(stage.told(), nothing);
    stage.tick();
    QCOMPARE(stage.told(), wentOn);
}

void TestRecordAudio::neverShowsMoreThanFiveSeconds()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    for (int second = 1; second <= 9; ++second) {
        stage.tick();
        QVERIFY(page_probe::shows(stage.lcd(), QStringLiteral("00:0%1").arg(qMin(second, 5))));
    }
}

void TestRecordAudio::goesOnOnlyWithTheNextTick()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.page.set_result_status(0);
    QCOMPARE(stage.told(), nothing);
    stage.tick();
    QCOMPARE(stage.told(), wentOn);
    QVERIFY2(page_probe::shows(stage.lcd(), QStringLiteral("00:01")), "also the last tick is counted");
    QVERIFY2(!stage.record().isEnabled(), "there is no way back");
}

void TestRecordAudio::tellsHowAWorkerEnded_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("told");
    QTest::newRow("finished") << 0 << wentOn;
    QTest::newRow("device gone") << 38 << lostItsDevice;
    QTest::newRow("failed") << 11 << wasAborted;
    QTest::newRow("unknown") << 1 << wasAborted;
}

void TestRecordAudio::tellsHowAWorkerEnded()
{
    QFETCH(const int, status);
    QFETCH(const QString, told);
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.page.set_result_status(status);
    stage.tick();
    QCOMPARE(stage.told(), told);
}

void TestRecordAudio::cancelWhileNothingRunsIsToldAtOnce()
{
    Stage stage;
    stage.cancel().click();
    QCOMPARE(stage.told(), wasCancelled);
}

void TestRecordAudio::cancelWhileItRecordsCancels()
{
    FakeSound sound;
    Stage stage;
    stage.record().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.cancel().click();
    QCOMPARE(stage.told(), nothing);
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);  // the worker reports success
    QTRY_COMPARE_WITH_TIMEOUT(stage.told(), wasCancelled, bound); // by its own timer
}

void TestRecordAudio::cancelAfterTheRecordingHasEndedGoesOn()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.page.set_result_status(0);
    stage.cancel().click();
    QCOMPARE(stage.told(), nothing);
    stage.tick();
    QCOMPARE(stage.told(), wentOn);
}

void TestRecordAudio::cancelDoesNotHideALostDevice()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.cancel().click();
    stage.page.set_result_status(38);
    stage.tick();
    QCOMPARE(stage.told(), lostItsDevice);
}

void TestRecordAudio::cancelTurnsAFailureIntoACancel()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.page.set_result_status(11);
    stage.cancel().click();
    stage.tick();
    QCOMPARE(stage.told(), wasCancelled);
}

void TestRecordAudio::aDeviceThatCannotBeOpenedIsLost()
{
    FakeSound sound;
    sound.canOpen = false;
    Stage stage;
    stage.record().click();
    QTRY_COMPARE_WITH_TIMEOUT(stage.told(), lostItsDevice, bound);
}

void TestRecordAudio::aDeviceThatVanishesIsLost()
{
    FakeSound sound;
    Stage stage;
    stage.record().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    sound.isStopped = true;
    QTRY_COMPARE_WITH_TIMEOUT(stage.told(), lostItsDevice, bound);
    QVERIFY(stage.slot->recording == nullptr);
}

void TestRecordAudio::aSecondRecordingIsNotStartedWhileOneRuns()
{
    FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.page.OnBtnRecordClicked();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.page.job().stop();
    QCOMPARE(sound.openedCount.load(), 1);
}

void TestRecordAudio::destructionStopsTheRecording()
{
    FakeSound sound;
    auto stage = std::make_unique<Stage>();
    stage->record().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.reset();
    QCOMPARE(sound.closedCount.load(), 1); // the worker is gone, its device closed
    QCOMPARE(audio::abandonedWorkerCount(), 0);
}

void TestRecordAudio::destructionDoesNotWaitForTheReport()
{
    FakeSound sound;
    auto stage = std::make_unique<Stage>();
    stage->record().click(); // the thread may not even have begun
    stage.reset();
    QCOMPARE(sound.closedCount.load(), sound.openedCount.load());
    QCOMPARE(audio::abandonedWorkerCount(), 0);
}

void TestRecordAudio::aWorkerThatDoesNotEndIsLeftToItself()
{
    FakeSound sound;
    sound.hangsOnClose = true;
    auto stage = std::make_unique<Stage>();
    stage->record().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    QElapsedTimer timer;
    timer.start();
    stage.reset();
    QVERIFY2(timer.elapsed() >= 2900 && timer.elapsed() < 6000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(audio::abandonedWorkerCount(), 1);
    QTest::ignoreMessage(QtWarningMsg, "SDL_Quit skipped: 1 worker(s) still use the sound library");
    audio::quitSoundLibrary();
    QCOMPARE(sound.quitCount.load(), 0);
    sound.hangsOnClose = false;
    QTRY_COMPARE_WITH_TIMEOUT(audio::abandonedWorkerCount(), 0, bound);
    QTRY_COMPARE_WITH_TIMEOUT(sound.closedCount.load(), 1, bound);
    audio::quitSoundLibrary();
    QCOMPARE(sound.quitCount.load(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestRecordAudio::noButtonIsADefaultOne()
{
    Stage stage;
    for (const QPushButton *button : stage.page.findChildren<QPushButton *>()) {
        QVERIFY(!button->autoDefault() && !button->isDefault());
        QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    }
}

void TestRecordAudio::screenReadersHearTheSeconds()
{
    const FakeSound sound;
    Stage stage;
    stage.record().click();
    stage.tick(2);
    QAccessibleInterface *lcd = QAccessible::queryAccessibleInterface(&stage.lcd());
    QCOMPARE(lcd->text(QAccessible::Name), QStringLiteral("00:02"));
    QAccessibleInterface *button = QAccessible::queryAccessibleInterface(&stage.record());
    QCOMPARE(button->role(), QAccessible::Button);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("RECORD"));
}

QTEST_MAIN(TestRecordAudio)
#include "tst_record_audio.moc"
