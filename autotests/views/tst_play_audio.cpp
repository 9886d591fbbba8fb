// SPDX-License-Identifier: Apache-2.0
#include "views/play_audio.h"

#include "audio/abandoned_workers.h"
#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QLCDNumber>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <new>

using namespace ostra;
using page_probe::named;

namespace {

constexpr int bound = 5000; // ms; a fake worker ends within 5

std::shared_ptr<audio::RecordingSlot> recorded(std::uint16_t seconds)
{
    auto slot = std::make_shared<audio::RecordingSlot>();
    slot->recording = std::make_shared<audio::AudioRecording>();
    slot->recording->seconds = seconds;
    slot->recording->frequency = 10;
    slot->recording->format = AUDIO_U8;
    slot->recording->channels = 1;
    slot->recording->framesPerCallback = 4096;
    slot->recording->byteCount = 10U * (seconds + 1U);
    slot->recording->samples = std::make_unique<std::uint8_t[]>(slot->recording->byteCount);
    return slot;
}

struct Stage {
    explicit Stage(std::uint16_t seconds = 5) : page(recorded(seconds), QStringLiteral("Speakers")) {}

    PlayAudio page;
    QSignalSpy next{&page, &PlayAudio::NextWidget};
    QSignalSpy cancelled{&page, &PlayAudio::CancelTest};
    QSignalSpy aborted{&page, &PlayAudio::AbortTest};
    QSignalSpy disconnected{&page, &PlayAudio::DisconnectedDevice};

    QPushButton &play() { return *named<QPushButton>(page, "microphone_test_play_button"); }
    QPushButton &goOn() { return *named<QPushButton>(page, "microphone_test_next_button"); }
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

class TestPlayAudio : public QObject {
    Q_OBJECT

private slots:
    void declaresItsSignalsAndSlotsInOrder();
    void hasTheNamesOfItsForm();
    void showsTheKeysOfItsTexts();
    void startsAtZeroSecondsAndWithoutNext();
    void playsByItselfWhenItComesUp();
    void aPlaybackThatCannotBeginByItselfFails();
    void playsOnceWhenAWindowComesBack();
    void isNotStartedAgainWhileItPlays();
    void disablesPlayAndNextWhileItPlays();
    void stopsAfterTheLengthOfTheRecording();
    void neverShowsMoreThanTheLengthOfTheRecording();
    void afterASuccessTheUserMayPlayAgainOrGoOn();
    void onlyNextGoesOn();
    void afterASuccessTheFocusIsNotOnCancel();
    void tellsHowAWorkerEnded_data();
    void tellsHowAWorkerEnded();
    void cancelWhileNothingRunsIsToldAtOnce();
    void cancelWhileItPlaysCancels();
    void cancelAfterAReportOfSuccessStays();
    void aSecondPlaybackIsNotStoppedByTheFirstCancel();
    void withoutARecordingItFails();
    void aDeviceThatCannotBeOpenedIsLost();
    void destructionStopsThePlayback();
    void aDeviceThatHangsDoesNotHoldThePage();
    void aSecondPlaybackLetsTheFirstOneGo();
    void noButtonIsADefaultOne();
    void screenReadersHearTheSeconds();
};

void TestPlayAudio::declaresItsSignalsAndSlotsInOrder()
{
    const QByteArrayList expected{"signal NextWidget()",         "signal CancelTest()",         "signal AbortTest()",
                                  "signal DisconnectedDevice()", "slot set_result_status(int)", "slot OnBtnCancelClicked()",
                                  "slot OnBtnNextClicked()",     "slot OnBtnPlayClicked()",     "slot OnTimerTick()"};
    QCOMPARE(page_probe::ownMethods(PlayAudio::staticMetaObject), expected);
    QCOMPARE(PlayAudio::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void TestPlayAudio::hasTheNamesOfItsForm()
{
    Stage stage;
    QCOMPARE(stage.page.objectName(), QStringLiteral("PlayAudio"));
    const QStringList tree = page_probe::namedTree(stage.page);
    for (const char *name :
         {"verticalLayout QVBoxLayout", "horizontalLayout_4 QHBoxLayout", "microphone_test_play_message QLabel",
          "horizontalLayout_3 QHBoxLayout", "microphone_test_play_button QPushButton", "microphone_test_lcd_numbers QLCDNumber",
          "horizontalLayout QHBoxLayout", "microphone_test_cancel_button QPushButton",
          "microphone_test_next_button QPushButton"})
        QVERIFY2(tree.contains(QLatin1String(name)), name);
    QCOMPARE(named<QLabel>(stage.page, "microphone_test_play_message")->styleSheet(), QStringLiteral("border: none;"));
}

void TestPlayAudio::showsTheKeysOfItsTexts()
{
    Stage stage;
    QCOMPARE(named<QLabel>(stage.page, "microphone_test_play_message")->text(),
             QStringLiteral("PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO"));
    QCOMPARE(stage.play().text(), QStringLiteral("PLAY"));
    QCOMPARE(stage.cancel().text(), QStringLiteral("CANCEL"));
    QCOMPARE(stage.goOn().text(), QStringLiteral("NEXT"));
}

void TestPlayAudio::startsAtZeroSecondsAndWithoutNext()
{
    Stage stage;
    QVERIFY(page_probe::shows(stage.lcd(), QStringLiteral("00:00")));
    QVERIFY(stage.play().isEnabled());
    QVERIFY(!stage.goOn().isEnabled());
}

void TestPlayAudio::playsByItselfWhenItComesUp()
{
    FakeSound sound;
    Stage stage;
    QSignalSpy clicked(&stage.play(), &QPushButton::clicked);
    stage.page.show();
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.constFirst().constFirst().toBool(), false);
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedNames(), std::vector<std::string>{"Speakers 0"}, bound);
    QVERIFY(!stage.play().isEnabled());
}

void TestPlayAudio::aPlaybackThatCannotBeginByItselfFails()
{
    const FakeSound sound;
    Stage stage;
    connect(&stage.play(), &QPushButton::clicked, this, [] { throw std::bad_alloc(); });
    try {
        stage.page.show();
    } catch (...) {
        QFAIL("it came out");
    }
    QCOMPARE(stage.told(), wasAborted);
}

void TestPlayAudio::playsOnceWhenAWindowComesBack()
{
    const FakeSound sound;
    Stage stage;
    stage.page.show();
    stage.page.set_result_status(0);
    stage.tick();
    QSignalSpy clicked(&stage.play(), &QPushButton::clicked);
    // As the window system tells of a window that comes back from the task bar.
    QShowEvent event;
    page_probe::sendSpontaneously(stage.page, event);
    QCOMPARE(clicked.size(), 0);
}

void TestPlayAudio::isNotStartedAgainWhileItPlays()
{
    FakeSound sound;
    Stage stage;
    stage.page.show();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.page.hide();
    stage.page.show();
    emit stage.play().clicked(false);
    stage.page.job().stop();
    QCOMPARE(sound.openedCount.load(), 1);
}

void TestPlayAudio::disablesPlayAndNextWhileItPlays()
{
    const FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.page.job().stop(); // a second job must not leave the first one behind without the fake
    stage.page.set_result_status(0);
    stage.tick();
    QVERIFY(stage.goOn().isEnabled());
    stage.play().click();
    QVERIFY(!stage.play().isEnabled() && !stage.goOn().isEnabled());
    QVERIFY(stage.cancel().isEnabled());
}

void TestPlayAudio::stopsAfterTheLengthOfTheRecording()
{
    FakeSound sound;
    Stage stage(3);
    stage.play().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.tick(3);
    QTest::qWait(100); // twenty turns of the fake worker
    QVERIFY(stage.page.job().isBusy());
    stage.tick();
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
    stage.tick();
    QVERIFY(stage.goOn().isEnabled());
}

void TestPlayAudio::neverShowsMoreThanTheLengthOfTheRecording()
{
    const FakeSound sound;
    Stage stage(3);
    stage.play().click();
    for (int second = 1; second <= 5; ++second) {
        stage.tick();
        QVERIFY(page_probe::shows(stage.lcd(), QStringLiteral("00:0%1").arg(qMin(second, 3))));
    }
}

void TestPlayAudio::afterASuccessTheUserMayPlayAgainOrGoOn()
{
    FakeSound sound;
    Stage stage;
    for (int round = 1; round <= 3; ++round) {
        stage.play().click();
        stage.tick(6);
        QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
        stage.tick();
        QCOMPARE(stage.told(), nothing);
        QVERIFY(stage.play().isEnabled() && stage.goOn().isEnabled());
        QCOMPARE(sound.openedCount.load(), round);
    }
}

void TestPlayAudio::onlyNextGoesOn()
{
    const FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.page.set_result_status(0);
    stage.tick(9);
    QCOMPARE(stage.told(), nothing);
    stage.goOn().click();
    QCOMPARE(stage.told(), wentOn);
}

void TestPlayAudio::afterASuccessTheFocusIsNotOnCancel()
{
    const FakeSound sound;
    Stage stage;
    stage.page.show();
    stage.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&stage.page));
    stage.page.set_result_status(0);
    stage.tick();
    QVERIFY(stage.goOn().hasFocus());
}

void TestPlayAudio::tellsHowAWorkerEnded_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("told");
    QTest::newRow("finished") << 0 << nothing;
    QTest::newRow("device gone") << 38 << lostItsDevice;
    QTest::newRow("failed") << 11 << wasAborted;
    QTest::newRow("unknown") << 1 << wasAborted;
}

void TestPlayAudio::tellsHowAWorkerEnded()
{
    QFETCH(const int, status);
    QFETCH(const QString, told);
    const FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.page.set_result_status(status);
    stage.tick();
    QCOMPARE(stage.told(), told);
    QCOMPARE(stage.goOn().isEnabled(), status == 0);
}

void TestPlayAudio::cancelWhileNothingRunsIsToldAtOnce()
{
    Stage stage;
    stage.cancel().click();
    QCOMPARE(stage.told(), wasCancelled);
}

void TestPlayAudio::cancelWhileItPlaysCancels()
{
    FakeSound sound;
    Stage stage;
    stage.play().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.cancel().click();
    QCOMPARE(stage.told(), nothing);
    QTRY_COMPARE_WITH_TIMEOUT(stage.told(), wasCancelled, bound); // by its own timer
    QVERIFY(!stage.goOn().isEnabled());
}

void TestPlayAudio::cancelAfterAReportOfSuccessStays()
{
    const FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.page.set_result_status(0);
    stage.cancel().click();
    stage.tick();
    QCOMPARE(stage.told(), nothing);
    QVERIFY(stage.goOn().isEnabled());
    stage.cancel().click(); // nothing runs any more
    QCOMPARE(stage.told(), wasCancelled);
}

void TestPlayAudio::aSecondPlaybackIsNotStoppedByTheFirstCancel()
{
    FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.tick(6);
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
    stage.cancel().click();
    stage.tick();
    stage.play().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 2, bound);
    QTest::qWait(100); // twenty turns of the fake worker
    QVERIFY(stage.page.job().isBusy());
}

void TestPlayAudio::withoutARecordingItFails()
{
    const FakeSound sound;
    PlayAudio page(std::make_shared<audio::RecordingSlot>(), QStringLiteral("Speakers"));
    QSignalSpy aborted(&page, &PlayAudio::AbortTest);
    page.OnBtnPlayClicked();
    QTRY_COMPARE_WITH_TIMEOUT(aborted.size(), 1, bound);
}

void TestPlayAudio::aDeviceThatCannotBeOpenedIsLost()
{
    FakeSound sound;
    sound.canOpen = false;
    Stage stage;
    stage.play().click();
    QTRY_COMPARE_WITH_TIMEOUT(stage.told(), lostItsDevice, bound);
}

void TestPlayAudio::destructionStopsThePlayback()
{
    FakeSound sound;
    auto stage = std::make_unique<Stage>();
    stage->play().click();
    QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
    stage.reset();
    QCOMPARE(sound.closedCount.load(), 1);
    QCOMPARE(audio::abandonedWorkerCount(), 0);
}

void TestPlayAudio::aDeviceThatHangsDoesNotHoldThePage()
{
    FakeSound sound;
    sound.hangsOnClose = true;
    Stage stage;
    stage.play().click();
    stage.tick(6);
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
    QTimer::singleShot(500, &stage.page,
                       [&sound] { sound.hangsOnClose = false; }); // never, where the thread waits for the device
    QTRY_VERIFY_WITH_TIMEOUT(!sound.hangsOnClose, bound);
    stage.tick();
    QVERIFY(named<QPushButton>(stage.page, "microphone_test_next_button")->isEnabled());
}

void TestPlayAudio::aSecondPlaybackLetsTheFirstOneGo()
{
    FakeSound sound;
    sound.hangsOnClose = true;
    Stage stage;
    stage.play().click();
    stage.tick(6);
    QTRY_VERIFY_WITH_TIMEOUT(!stage.page.job().isBusy(), bound);
    stage.tick();
    QCOMPARE(audio::abandonedWorkerCount(), 0);
    stage.play().click();
    QCOMPARE(audio::abandonedWorkerCount(), 1);
    sound.hangsOnClose = false;
    QTRY_COMPARE_WITH_TIMEOUT(audio::abandonedWorkerCount(), 0, bound);
    QVERIFY(stage.page.job().isBusy());
}

void TestPlayAudio::noButtonIsADefaultOne()
{
    Stage stage;
    const QList<QPushButton *> buttons = stage.page.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 3);
    for (const QPushButton *button : buttons) {
        QVERIFY(!button->autoDefault() && !button->isDefault());
        QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    }
}

void TestPlayAudio::screenReadersHearTheSeconds()
{
    const FakeSound sound;
    Stage stage;
    stage.play().click();
    stage.tick(2);
    QAccessibleInterface *lcd = QAccessible::queryAccessibleInterface(&stage.lcd());
    QCOMPARE(lcd->text(QAccessible::Name), QStringLiteral("00:02"));
}

QTEST_MAIN(TestPlayAudio)
#include "tst_play_audio.moc"
