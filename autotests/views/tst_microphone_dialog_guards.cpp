// SPDX-License-Identifier: Apache-2.0
// Whatever throws in a handler or a slot of the microphone dialog: nothing comes out, and the dialog ends as it should.
#include "autotests/views/dialog_stage.h"
#include "autotests/views/throwing_host.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QObject>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <new>

using namespace ostra;
using namespace dialog_stage;
using page_probe::named;

namespace {

// The middle of the header, without its button.
QPoint grip(const Stage &stage) { return named<QWidget>(*stage.dialog, "microphone_test_header_label")->geometry().center(); }

void send(Stage &stage, QEvent::Type type, const QPoint &offset = {})
{
    const QPoint position = grip(stage);
    QMouseEvent event(type, position, stage.dialog->mapToGlobal(position) + offset, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(stage.dialog.get(), &event);
}

} // namespace

class TestMicrophoneDialogGuards : public QObject {
    Q_OBJECT

private slots:
    void aListenerThatThrowsDoesNotChangeTheEnd_data();
    void aListenerThatThrowsDoesNotChangeTheEnd();
    void aListenerOfItsAcceptanceThatThrowsDoesNotChangeTheEnd();
    void aListenerThatIsFirstKeepsNoJobRunning();
    void aMouseEventThatFailsAbortsIt_data();
    void aMouseEventThatFailsAbortsIt();
    void aPageThatCannotBeShownAbortsIt();
    void aMoveThatFailsWhileItComesUpAbortsIt();
    void aJobWhoseButtonCannotBeSwitchedOffAbortsIt();
    void aListenerOfAPageThatThrowsIsDropped_data();
    void aListenerOfAPageThatThrowsIsDropped();
};

void TestMicrophoneDialogGuards::aListenerThatThrowsDoesNotChangeTheEnd_data()
{
    struct End {
        const char *name;
        Action act;
        int result;
    };
    const End ends[] = {
        {"Close", [](Stage &stage) { stage.dialog->Close(); }, dialog_result::closed},
        {"Cancel", [](Stage &stage) { stage.dialog->Cancel(); }, dialog_result::cancelled},
        {"Finish", [](Stage &stage) { stage.dialog->Finish(); }, dialog_result::heard},
        {"Abort", [](Stage &stage) { stage.dialog->Abort(); }, dialog_result::closed},
        {"a lost device", [](Stage &stage) { stage.dialog->AbortDeviceDisconnected(); }, dialog_result::closed},
        {"the close button", [](Stage &stage) { stage.close().click(); }, dialog_result::closed},
        {"a page", [](Stage &stage) { stage.select().onBtnCancelClicked(); }, dialog_result::cancelled},
        {"escape", [](Stage &stage) { QTest::keyClick(stage.dialog.get(), Qt::Key_Escape); }, dialog_result::cancelled},
        {"a change of the window",
         [](Stage &stage) {
             stage.events.flags = 1;
             QEvent state(QEvent::WindowStateChange);
             QCoreApplication::sendEvent(stage.dialog.get(), &state);
         },
         dialog_result::cancelled},
        {"an event of the machine",
         [](Stage &stage) {
             stage.events.flags = 1;
             stage.dialog->CheckSystemEvent();
             QCoreApplication::processEvents();
         },
         dialog_result::none},
        {"a close by the user",
         [](Stage &stage) {
             QCloseEvent event;
             page_probe::sendSpontaneously(*stage.dialog, event);
         },
         dialog_result::closed},
        {"a close by a program", [](Stage &stage) { stage.dialog->close(); }, dialog_result::none}};
    QTest::addColumn<Action>("act");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("always");
    for (const End &end : ends) {
        QTest::addRow("%s, once", end.name) << end.act << end.result << false;
        QTest::addRow("%s, always", end.name) << end.act << end.result << true;
    }
}

void TestMicrophoneDialogGuards::aListenerThatThrowsDoesNotChangeTheEnd()
{
    QFETCH(const Action, act);
    QFETCH(const int, result);
    QFETCH(const bool, always);
    Stage stage;
    int toldCount = 0;
    connect(stage.dialog.get(), &QDialog::finished, this, [&] {
        if (toldCount++ == 0 || always)
            throw std::bad_alloc();
    });
    bool hasComeOut = false;
    const int outcome = stage.resultOf([&] { hasComeOut = throwing_host::comesOut([&] { act(stage); }); });
    QVERIFY(!hasComeOut);
    QCOMPARE(outcome, result);
    QCOMPARE(stage.dialog->result(), result);
    QCOMPARE(toldCount, 2); // once more, for those behind it
    QVERIFY(stage.dialog->hasFinished() && !stage.dialog->isVisible());
    const QByteArray row = QTest::currentDataTag();
    QCOMPARE(stage.dialog->isAborted(), row.startsWith("Abort"));
    QCOMPARE(stage.dialog->isDeviceDisconnected(), row.startsWith("a lost device"));
}

void TestMicrophoneDialogGuards::aListenerOfItsAcceptanceThatThrowsDoesNotChangeTheEnd()
{
    Stage stage;
    bool hasThrown = false;
    bool isTold = false;
    connect(stage.dialog.get(), &QDialog::accepted, this, [&] {
        hasThrown = true;
        throw std::bad_alloc();
    });
    connect(stage.dialog.get(), &QDialog::finished, this, [&] { isTold = true; });
    bool hasComeOut = false;
    const int outcome = stage.resultOf([&] { hasComeOut = throwing_host::comesOut([&] { stage.dialog->Finish(); }); });
    QVERIFY(!hasComeOut && hasThrown && isTold);
    QCOMPARE(outcome, int(dialog_result::heard));
}

// It hears of the end before the dialog's own parts do, and keeps it from them both times.
void TestMicrophoneDialogGuards::aListenerThatIsFirstKeepsNoJobRunning()
{
    throwing_host::FirstListener first;
    Stage stage;
    stage.dialog = std::make_unique<InteractionDialog>(QStringLiteral("Speakers"), nullptr, &first, &stage.events);
    bool isClosingTold = false;
    connect(stage.dialog.get(), &InteractionDialog::closing, this, [&] { isClosingTold = true; });
    bool hasComeOut = false;
    const int outcome = stage.resultOf([&] {
        stage.goToRecordPage();
        stage.click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 1, bound);
        hasComeOut = throwing_host::comesOut([&] { stage.dialog->Close(); });
    });
    QVERIFY(!hasComeOut);
    QCOMPARE(first.toldCount(), 2);
    QVERIFY(!isClosingTold);
    QCOMPARE(outcome, int(dialog_result::closed));
    QVERIFY(stage.isQuiet());
}

void TestMicrophoneDialogGuards::aMouseEventThatFailsAbortsIt_data()
{
    QTest::addColumn<Action>("before");
    QTest::addColumn<Action>("act");
    QTest::addColumn<int>("throwsAt");
    const Action nothing = [](Stage &) {};
    const Action press = [](Stage &stage) { send(stage, QEvent::MouseButtonPress); };
    QTest::newRow("a press") << nothing << press << int(QEvent::CursorChange);
    QTest::newRow("a move") << press << Action([](Stage &stage) { send(stage, QEvent::MouseMove, QPoint(30, 20)); })
                            << int(QEvent::Move);
    QTest::newRow("a release") << press << Action([](Stage &stage) { send(stage, QEvent::MouseButtonRelease); })
                               << int(QEvent::CursorChange);
}

void TestMicrophoneDialogGuards::aMouseEventThatFailsAbortsIt()
{
    QFETCH(const Action, before);
    QFETCH(const Action, act);
    QFETCH(const int, throwsAt);
    Stage stage;
    stage.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(stage.dialog.get()));
    before(stage);
    throwing_host::Filter filter{QEvent::Type(throwsAt)};
    stage.dialog->installEventFilter(&filter);
    QVERIFY(!throwing_host::comesOut([&] { act(stage); }));
    QVERIFY(filter.hasThrown());
    QVERIFY(stage.dialog->isAborted());
    QCOMPARE(stage.dialog->result(), int(dialog_result::closed));
}

void TestMicrophoneDialogGuards::aPageThatCannotBeShownAbortsIt()
{
    Stage stage;
    stage.dialog->show();
    throwing_host::Filter filter(QEvent::Show);
    stage.record().installEventFilter(&filter);
    stage.record().set_device_name(stage.select().findChild<QRadioButton *>()->text());
    QVERIFY(!throwing_host::comesOut([&] { stage.dialog->goToNextWidget(); }));
    QVERIFY(filter.hasThrown());
    QVERIFY(stage.dialog->isAborted());
}

void TestMicrophoneDialogGuards::aMoveThatFailsWhileItComesUpAbortsIt()
{
    QWidget window;
    window.setGeometry(100, 60, 700, 500);
    QWidget child(&window);
    throwing_host::Filter filter(QEvent::Move, QEvent::Show);
    Stage stage; // goes before its parent
    stage.dialog->setParent(&child, stage.dialog->windowFlags());
    stage.dialog->installEventFilter(&filter);
    QVERIFY(!throwing_host::comesOut([&] { stage.dialog->show(); }));
    QVERIFY(filter.hasThrown());
    QVERIFY(stage.dialog->isAborted());
}

void TestMicrophoneDialogGuards::aJobWhoseButtonCannotBeSwitchedOffAbortsIt()
{
    Stage stage;
    stage.goToRecordPage();
    throwing_host::Filter filter(QEvent::EnabledChange);
    named<QPushButton>(stage.record(), "microphone_test_record_button")->installEventFilter(&filter);
    QVERIFY(!throwing_host::comesOut([&] { stage.record().OnBtnRecordClicked(); }));
    QVERIFY(filter.hasThrown());
    QVERIFY(stage.dialog->isAborted());
    QCOMPARE(stage.sound.openedCount.load(), 0);
    Stage other;
    throwing_host::Filter next(QEvent::EnabledChange);
    named<QPushButton>(other.play(), "microphone_test_play_button")->installEventFilter(&next);
    QVERIFY(!throwing_host::comesOut([&] { other.play().OnBtnPlayClicked(); }));
    QVERIFY(next.hasThrown());
    QVERIFY(other.dialog->isAborted());
}

void TestMicrophoneDialogGuards::aListenerOfAPageThatThrowsIsDropped_data()
{
    QTest::addColumn<Action>("act");
    QTest::newRow("next after the choice") << Action([](Stage &stage) { stage.select().onBtnNextClicked(); });
    QTest::newRow("cancel of the choice") << Action([](Stage &stage) { stage.select().onBtnCancelClicked(); });
    QTest::newRow("cancel of the recording") << Action([](Stage &stage) { stage.record().OnBtnCancelClicked(); });
    QTest::newRow("cancel of the playback") << Action([](Stage &stage) { stage.play().OnBtnCancelClicked(); });
    QTest::newRow("next after the playback") << Action([](Stage &stage) { stage.play().OnBtnNextClicked(); });
}

void TestMicrophoneDialogGuards::aListenerOfAPageThatThrowsIsDropped()
{
    QFETCH(const Action, act);
    Stage stage;
    int toldCount = 0;
    const auto listener = [&] {
        ++toldCount;
        throw std::bad_alloc();
    };
    connect(&stage.select(), &SelectDevice::NextWidget, this, listener);
    connect(&stage.select(), &SelectDevice::cancelTest, this, listener);
    connect(&stage.record(), &RecordAudio::CancelTest, this, listener);
    connect(&stage.play(), &PlayAudio::CancelTest, this, listener);
    connect(&stage.play(), &PlayAudio::NextWidget, this, listener);
    QVERIFY(!throwing_host::comesOut([&] { act(stage); }));
    QCOMPARE(toldCount, 1);
}

QTEST_MAIN(TestMicrophoneDialogGuards)
#include "tst_microphone_dialog_guards.moc"
