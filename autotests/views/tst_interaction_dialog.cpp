// SPDX-License-Identifier: Apache-2.0
#include "views/interaction_dialog.h"

#include "autotests/views/dialog_stage.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>
#include <utility>

using namespace ostra;
using namespace dialog_stage;
using page_probe::named;

class TestInteractionDialog : public QObject {
    Q_OBJECT

private slots:
    void declaresItsSignalAndSlotsInOrder();
    void hasTheNamesOfItsForm();
    void hasThePagesInOrderAfterThePlaceholders();
    void isATopLevelModalWindow();
    void hasTheFlagsOfAFramelessDialogOnTop();
    void showsTheKeysOfItsTexts();
    void installsTheEventFilter();
    void answersTheResultOfEachEnd_data();
    void answersTheResultOfEachEnd();
    void keepsTheResultWithDeleteOnClose();
    void aCloseByAProgramKeepsNone();
    void aCloseByTheWindowSystemIsTheUsers();
    void theEndOfTheApplicationIsNoPass();
    void escapeCancelsOnEveryPage_data();
    void escapeCancelsOnEveryPage();
    void otherKeysDoNothing_data();
    void otherKeysDoNothing();
    void goesThroughThePagesToTheEnd();
    void goesForwardOnly();
    void handsOnTheChosenMicrophone();
    void tabsAsOneReads();
    void withoutAMicrophoneItStaysUsable();
    void aMicrophoneThatIsGoneEndsIt();
    void anOutputThatIsGoneEndsItBeforeThePlayback();
    void comparesNamesExactly();
    void otherPagesCheckNoDevice();
};

void TestInteractionDialog::declaresItsSignalAndSlotsInOrder()
{
    const QByteArrayList expected{"signal closing()",
                                  "slot Close()",
                                  "slot Cancel()",
                                  "slot Abort()",
                                  "slot AbortDeviceDisconnected()",
                                  "slot CheckSystemEvent()",
                                  "slot Finish()",
                                  "slot goToNextWidget()",
                                  "slot CheckMicrophoneConnection(int)"};
    QCOMPARE(page_probe::ownMethods(InteractionDialog::staticMetaObject), expected);
    QCOMPARE(InteractionDialog::staticMetaObject.superClass(), &InputDialog::staticMetaObject);
}

void TestInteractionDialog::hasTheNamesOfItsForm()
{
    Stage stage;
    QCOMPARE(stage.dialog->objectName(), QStringLiteral("InteractionDialog"));
    QCOMPARE(stage.dialog->layout()->objectName(), QStringLiteral("verticalLayout"));
    const QWidget *header = named<QWidget>(*stage.dialog, "microphone_test_header");
    QCOMPARE(page_probe::namedTree(*header), (QStringList{QStringLiteral("horizontalLayout_2 QHBoxLayout"),
                                                          QStringLiteral("microphone_test_header_icon QLabel"),
                                                          QStringLiteral("microphone_test_header_label QLabel"),
                                                          QStringLiteral("microphone_test_header_close QPushButton")}));
    QStringList rows;
    for (int row = 0; row < stage.dialog->layout()->count(); ++row)
        rows << stage.dialog->layout()->itemAt(row)->widget()->objectName();
    QCOMPARE(rows, (QStringList{QStringLiteral("microphone_test_header"), QStringLiteral("microphone_test_popups_space"),
                                QStringLiteral("microphone_test_footer")}));
}

void TestInteractionDialog::hasThePagesInOrderAfterThePlaceholders()
{
    Stage stage;
    QStringList names;
    for (int index = 0; index < stage.pages().count(); ++index)
        names << stage.pages().widget(index)->objectName();
    QCOMPARE(names, (QStringList{QStringLiteral("page"), QStringLiteral("page_2"), QStringLiteral("SelectDevice"),
                                 QStringLiteral("RecordAudio"), QStringLiteral("PlayAudio")}));
    QCOMPARE(&stage.page(), &stage.select());
}

void TestInteractionDialog::isATopLevelModalWindow()
{
    const FakeSound sound;
    QWidget parent;
    const InteractionDialog dialog(QStringLiteral("Speakers"), &parent, nullptr, nullptr);
    QVERIFY(dialog.parent() == nullptr);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestInteractionDialog::hasTheFlagsOfAFramelessDialogOnTop()
{
    Stage stage;
    QCOMPARE(stage.dialog->windowFlags().toInt(), 0x40803);
    stage.dialog->raiseOnce();
    QCOMPARE(stage.dialog->windowFlags().toInt(), 0x803);
}

void TestInteractionDialog::showsTheKeysOfItsTexts()
{
    Stage stage;
    QCOMPARE(stage.dialog->windowTitle(), QStringLiteral("APPLICATION_NAME"));
    QCOMPARE(named<QLabel>(*stage.dialog, "microphone_test_header_label")->text(),
             QStringLiteral("MICROPHONE_INTERACTIVE_TEST"));
}

void TestInteractionDialog::installsTheEventFilter()
{
    class Filter final : public QObject {
    public:
        bool eventFilter(QObject *, QEvent *) override
        {
            ++count;
            return false;
        }
        int count = 0;
    } filter;
    const FakeSound sound;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, &filter, nullptr);
    filter.count = 0;
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&dialog, &event);
    QCOMPARE(filter.count, 1);
}

void TestInteractionDialog::answersTheResultOfEachEnd_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("isDisconnected");
    QTest::addColumn<bool>("isAborted");
    const auto row = [](const char *name, Action action, int result, bool isDisconnected, bool isAborted) {
        QTest::newRow(name) << action << result << isDisconnected << isAborted;
    };
    row(
        "Close", [](Stage &stage) { stage.dialog->Close(); }, 5, false, false);
    row(
        "header close button", [](Stage &stage) { stage.close().click(); }, 5, false, false);
    row(
        "Cancel", [](Stage &stage) { stage.dialog->Cancel(); }, 2, false, false);
    row(
        "cancel of the first page", [](Stage &stage) { emit stage.select().cancelTest(); }, 2, false, false);
    row(
        "cancel of the record page", [](Stage &stage) { emit stage.record().CancelTest(); }, 2, false, false);
    row(
        "cancel of the play page", [](Stage &stage) { emit stage.play().CancelTest(); }, 2, false, false);
    row(
        "Abort", [](Stage &stage) { stage.dialog->Abort(); }, 5, false, true);
    row(
        "abort of the record page", [](Stage &stage) { emit stage.record().AbortTest(); }, 5, false, true);
    row(
        "abort of the play page", [](Stage &stage) { emit stage.play().AbortTest(); }, 5, false, true);
    row(
        "AbortDeviceDisconnected", [](Stage &stage) { stage.dialog->AbortDeviceDisconnected(); }, 5, true, false);
    row(
        "lost by the record page", [](Stage &stage) { emit stage.record().DisconnectedDevice(); }, 5, true, false);
    row(
        "lost by the play page", [](Stage &stage) { emit stage.play().DisconnectedDevice(); }, 5, true, false);
    row(
        "Finish", [](Stage &stage) { stage.dialog->Finish(); }, 1, false, false);
    row(
        "next of the play page", [](Stage &stage) { emit stage.play().NextWidget(); }, 1, false, false);
}

void TestInteractionDialog::answersTheResultOfEachEnd()
{
    QFETCH(const Action, action);
    QFETCH(const int, result);
    Stage stage;
    QCOMPARE(stage.resultOf([&] { action(stage); }), result);
    QTEST(stage.dialog->isDeviceDisconnected(), "isDisconnected");
    QTEST(stage.dialog->isAborted(), "isAborted");
    QVERIFY(!stage.dialog->isVisible());
}

void TestInteractionDialog::keepsTheResultWithDeleteOnClose()
{
    Stage stage;
    stage.dialog->setAttribute(Qt::WA_DeleteOnClose);
    QCOMPARE(stage.resultOf([&] { stage.dialog->Close(); }), 5);
    QCOMPARE(stage.dialog->result(), 5);
}

void TestInteractionDialog::aCloseByAProgramKeepsNone()
{
    Stage stage;
    QCOMPARE(stage.resultOf([&] { stage.dialog->close(); }), 0);
}

void TestInteractionDialog::aCloseByTheWindowSystemIsTheUsers()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        QCloseEvent event;
        page_probe::sendSpontaneously(*stage.dialog, event);
        QVERIFY(event.isAccepted());
    });
    QCOMPARE(result, 5);
    QVERIFY(!stage.dialog->isVisible());
}

void TestInteractionDialog::theEndOfTheApplicationIsNoPass()
{
    Stage stage;
    int result = -1;
    QTimer::singleShot(0, stage.dialog.get(), [&] { result = stage.resultOf([] { QCoreApplication::quit(); }); });
    QCoreApplication::exec(); // without its loop an application has no end
    QVERIFY2(!stage.dialog->hasFinished() || result == 5, "unfinished, or as the user closes it");
}

void TestInteractionDialog::escapeCancelsOnEveryPage_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("select") << 2;
    QTest::newRow("record") << 3;
    QTest::newRow("play") << 4;
}

void TestInteractionDialog::escapeCancelsOnEveryPage()
{
    QFETCH(const int, page);
    Stage stage;
    const int result = stage.resultOf([&] {
        if (page == 3)
            stage.goToRecordPage();
        if (page == 4)
            stage.goToPlayPage();
        QCOMPARE(stage.pages().currentIndex(), page);
        QWidget *target = stage.dialog->focusWidget() != nullptr ? stage.dialog->focusWidget() : stage.dialog.get();
        QTest::keyClick(target, Qt::Key_Escape);
    });
    QCOMPARE(result, 2);
    QVERIFY(stage.isQuiet());
    QVERIFY(!stage.dialog->isDeviceDisconnected() && !stage.dialog->isAborted());
}

void TestInteractionDialog::otherKeysDoNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_F1, Qt::Key_Backspace})
        QTest::newRow(qPrintable(QVariant::fromValue(key).toString())) << key;
}

void TestInteractionDialog::otherKeysDoNothing()
{
    QFETCH(const Qt::Key, key);
    Stage stage;
    stage.dialog->show();
    QSignalSpy clicked(named<QPushButton>(stage.select(), "microphone_test_next_button"), &QPushButton::clicked);
    QSignalSpy finished(stage.dialog.get(), &QDialog::finished);
    QList<QWidget *> targets = stage.select().findChildren<QWidget *>(QStringLiteral("microphone_test_radio_button"));
    targets << stage.dialog.get() << &stage.close() << named<QWidget>(stage.select(), "microphone_test_next_button");
    for (QWidget *target : targets) {
        target->setFocus();
        QTest::keyClick(target, key);
    }
    QCOMPARE(clicked.size() + finished.size(), 0);
    QCOMPARE(&stage.page(), &stage.select());
}

void TestInteractionDialog::goesThroughThePagesToTheEnd()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.goToPlayPage();
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 2, bound); // it plays by itself
        for (int tick = 0; tick < 6; ++tick)
            stage.play().OnTimerTick();
        QTRY_VERIFY_WITH_TIMEOUT(!stage.play().job().isBusy(), bound);
        stage.play().OnTimerTick();
        stage.click("microphone_test_next_button");
    });
    QCOMPARE(result, 1);
    QCOMPARE(stage.sound.openedNames(), (std::vector<std::string>{"Mic A 1", "Speakers 0"}));
    QVERIFY(stage.isQuiet());
}

void TestInteractionDialog::goesForwardOnly()
{
    Stage stage;
    stage.dialog->goToNextWidget();
    QCOMPARE(stage.pages().currentIndex(), 3);
    stage.record().set_device_name(QStringLiteral("Mic A"));
    stage.dialog->goToNextWidget();
    stage.dialog->goToNextWidget();
    QCOMPARE(stage.pages().currentIndex(), 4);
}

void TestInteractionDialog::handsOnTheChosenMicrophone()
{
    Stage stage;
    stage.dialog->show();
    stage.select().findChildren<QRadioButton *>().constLast()->click();
    stage.goToRecordPage();
    QCOMPARE(stage.record().deviceName(), QStringLiteral("Mic B"));
    QCOMPARE(&stage.page(), &stage.record());
}

void TestInteractionDialog::tabsAsOneReads()
{
    FakeSound sound;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    QStringList stops;
    QTimer::singleShot(0, &dialog, [&] {
        for (int stop = 0; stop < 4; ++stop) {
            stops << dialog.focusWidget()->objectName();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        dialog.Close();
    });
    dialog.exec();
    QCOMPARE(stops,
             QStringList({QStringLiteral("microphone_test_radio_button"), QStringLiteral("microphone_test_cancel_button"),
                          QStringLiteral("microphone_test_next_button"), QStringLiteral("microphone_test_header_close")}));
}

void TestInteractionDialog::withoutAMicrophoneItStaysUsable()
{
    FakeSound sound;
    sound.microphones.clear();
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        auto &page = *dialog.findChild<SelectDevice *>();
        named<QPushButton>(page, "microphone_test_next_button")->click();
        QVERIFY(dialog.isVisible() && page.isVisible());
        named<QPushButton>(page, "microphone_test_cancel_button")->click();
    });
    QCOMPARE(dialog.exec(), 2);
}

void TestInteractionDialog::aMicrophoneThatIsGoneEndsIt()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.sound.microphones = {"Mic B"};
        stage.goToRecordPage();
    });
    QCOMPARE(result, 5);
    QVERIFY(stage.dialog->isDeviceDisconnected());
    QVERIFY(!stage.dialog->isAborted());
}

void TestInteractionDialog::anOutputThatIsGoneEndsItBeforeThePlayback()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.goToRecordPage();
        stage.click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 1, bound);
        for (int tick = 0; tick < 6; ++tick)
            stage.record().OnTimerTick();
        QTRY_VERIFY_WITH_TIMEOUT(!stage.record().job().isBusy(), bound);
        stage.sound.outputs = {"Headphones"};
        stage.record().OnTimerTick();
    });
    // The page plays as soon as it is shown, and a worker that opens a device would hold up the dialog's look.
    QCOMPARE(stage.sound.openedNames(), std::vector<std::string>{"Mic A 1"});
    QCOMPARE(result, 5);
    QVERIFY(stage.dialog->isDeviceDisconnected());
    QVERIFY(stage.isQuiet());
}

void TestInteractionDialog::comparesNamesExactly()
{
    Stage stage;
    stage.sound.microphones = {"Mic A (2)", "mic a", "Mic A "};
    stage.record().set_device_name(QStringLiteral("Mic A"));
    stage.dialog->CheckMicrophoneConnection(3);
    QVERIFY(stage.dialog->isDeviceDisconnected());
    QCOMPARE(stage.dialog->result(), 5);
}

void TestInteractionDialog::otherPagesCheckNoDevice()
{
    Stage stage;
    stage.sound.microphones.clear();
    stage.sound.outputs.clear();
    for (const int index : {-1, 0, 1, 2, 5})
        stage.dialog->CheckMicrophoneConnection(index);
    QVERIFY(!stage.dialog->isDeviceDisconnected());
    QVERIFY(!stage.dialog->hasFinished());
}

QTEST_MAIN(TestInteractionDialog)
#include "tst_interaction_dialog.moc"
