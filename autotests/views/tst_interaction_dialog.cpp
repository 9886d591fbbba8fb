// SPDX-License-Identifier: Apache-2.0
#include "views/interaction_dialog.h"

#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"
#include "contract/test_context.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

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
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>

using namespace ostra;
using page_probe::named;

namespace {

constexpr int bound = 5000; // ms

class FakeEvents final : public EventSource {
public:
    std::uint32_t pendingEvents() override
    {
        ++askedCount;
        return flags;
    }
    std::uint32_t flags = 0;
    int askedCount = 0;
};

struct Stage {
    FakeSound sound;
    FakeEvents events;
    std::unique_ptr<InteractionDialog> dialog =
        std::make_unique<InteractionDialog>(QStringLiteral("Speakers"), nullptr, nullptr, &events);

    QStackedWidget &pages() { return *named<QStackedWidget>(*dialog, "microphone_test_popups_space"); }
    QWidget &page() { return *pages().currentWidget(); }
    SelectDevice &select() { return *dialog->findChild<SelectDevice *>(); }
    RecordAudio &record() { return *dialog->findChild<RecordAudio *>(); }
    PlayAudio &play() { return *dialog->findChild<PlayAudio *>(); }
    QPushButton &close() { return *named<QPushButton>(*dialog, "microphone_test_header_close"); }
    void click(const char *name) { QTest::mouseClick(named<QPushButton>(page(), name), Qt::LeftButton); }

    void goToRecordPage() { click("microphone_test_next_button"); }
    // Without the five seconds.
    void goToPlayPage()
    {
        goToRecordPage();
        click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
        for (int tick = 0; tick < 6; ++tick)
            record().OnTimerTick();
        QTRY_VERIFY_WITH_TIMEOUT(!record().job().isBusy(), bound);
        record().OnTimerTick();
        QCOMPARE(&page(), &play());
    }
    /// What exec answers when `action` runs in its loop.
    int resultOf(const std::function<void()> &action)
    {
        QTimer::singleShot(0, dialog.get(), action);
        QTimer late;
        QObject::connect(&late, &QTimer::timeout, dialog.get(), [this] { dialog->done(99); });
        late.start(4 * bound);
        return dialog->exec();
    }
    /// Every device that was opened is closed, and nothing runs.
    bool isQuiet() const { return sound.openedCount == sound.closedCount; }
};

using Action = void (*)(Stage &);

} // namespace
Q_DECLARE_METATYPE(Action)

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
    void withoutAMicrophoneItStaysUsable();
    void aMicrophoneThatIsGoneEndsIt();
    void anOutputThatIsGoneEndsItAndStopsThePlayback();
    void comparesNamesExactly();
    void otherPagesCheckNoDevice();
    void anEventDuringARecordingClosesIt();
    void anEventThatIsNoReasonDoesNotCloseIt();
    void asksForEventsTwiceASecond();
    void anEventAtAChangeOfTheWindowCancels();
    void anEventBeforeTheLoopCancels();
    void worksWithoutAnEventSource();
    void closingIsToldOnce();
    void closingStopsWhatRuns_data();
    void closingStopsWhatRuns();
    void noSignalFollowsTheEnd();
    void isDraggedByItsHeader_data();
    void isDraggedByItsHeader();
    void isNotDraggedByAnythingElse_data();
    void isNotDraggedByAnythingElse();
    void isCentredOnAParentThatItGetsLater();
    void pagesCoverTheWholeDialog();
    void nothingCoversTheBackgroundOfTheList();
    void theFocusBeginsOnThePage();
    void noButtonIsADefaultOne();
    void screenReadersGetTheNameOfTheCloseButton();
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

void TestInteractionDialog::anOutputThatIsGoneEndsItAndStopsThePlayback()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.goToRecordPage();
        stage.sound.outputs = {"Headphones"};
        stage.dialog->goToNextWidget(); // the page starts to play before the dialog looks
    });
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

void TestInteractionDialog::anEventDuringARecordingClosesIt()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.goToRecordPage();
        stage.click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 1, bound);
        stage.events.flags = 0x100;
    });
    QCOMPARE(result, 0);
    QVERIFY(!stage.dialog->isVisible());
    QVERIFY(stage.isQuiet());
    QVERIFY(!stage.dialog->isDeviceDisconnected() && !stage.dialog->isAborted());
}

void TestInteractionDialog::anEventThatIsNoReasonDoesNotCloseIt()
{
    Stage stage;
    stage.events.flags = ~0x1FBU;
    stage.dialog->show();
    QTRY_VERIFY_WITH_TIMEOUT(stage.events.askedCount > 4, bound);
    stage.dialog->CheckSystemEvent();
    QCoreApplication::processEvents();
    QVERIFY(stage.dialog->isVisible());
}

void TestInteractionDialog::asksForEventsTwiceASecond()
{
    Stage stage;
    stage.events.askedCount = 0;
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(stage.events.askedCount >= 3, bound);
    QVERIFY2(timer.elapsed() >= 1200, "three times in less than three intervals");
}

void TestInteractionDialog::anEventAtAChangeOfTheWindowCancels()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.events.flags = 1;
        stage.dialog->setWindowTitle(QStringLiteral("changed"));
    });
    QCOMPARE(result, 2);
}

void TestInteractionDialog::anEventBeforeTheLoopCancels()
{
    Stage stage;
    stage.dialog->setAttribute(Qt::WA_DeleteOnClose);
    stage.events.flags = 1;
    const QPointer<InteractionDialog> dialog = stage.dialog.release();
    dialog->raiseOnce();
    const int result = dialog->exec(); // returns, instead of waiting for a dialog that has finished
    QVERIFY2(result == 2 || result == 0, qPrintable(QString::number(result)));
    if (dialog)
        delete dialog.data();
}

void TestInteractionDialog::worksWithoutAnEventSource()
{
    const FakeSound sound;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    dialog.CheckSystemEvent();
    dialog.setWindowTitle(QStringLiteral("changed"));
    QCoreApplication::processEvents();
    QVERIFY(!dialog.hasFinished());
}

void TestInteractionDialog::closingIsToldOnce()
{
    Stage stage;
    QSignalSpy closing(stage.dialog.get(), &InteractionDialog::closing);
    stage.resultOf([&] { stage.dialog->Cancel(); });
    QCOMPARE(closing.size(), 1);
}

void TestInteractionDialog::closingStopsWhatRuns_data()
{
    QTest::addColumn<Action>("start");
    QTest::addColumn<Action>("end");
    const std::pair<const char *, Action> starts[] = {{"recording",
                                                       [](Stage &stage) {
                                                           stage.goToRecordPage();
                                                           stage.click("microphone_test_record_button");
                                                       }},
                                                      {"playing", [](Stage &stage) { stage.goToPlayPage(); }}};
    const std::pair<const char *, Action> ends[] = {
        {"close button", [](Stage &stage) { stage.close().click(); }},
        {"escape", [](Stage &stage) { QTest::keyClick(stage.dialog.get(), Qt::Key_Escape); }},
        {"event", [](Stage &stage) { stage.events.flags = 1; }},
        {"program", [](Stage &stage) { stage.dialog->close(); }},
        {"watcher", [](Stage &stage) { emit stage.dialog->finished(0); }},
        {"destruction", [](Stage &stage) { stage.dialog->Cancel(); }}};
    for (const auto &[startName, start] : starts) {
        for (const auto &[endName, end] : ends)
            QTest::addRow("%s, %s", startName, endName) << start << end;
    }
}

void TestInteractionDialog::closingStopsWhatRuns()
{
    QFETCH(const Action, start);
    QFETCH(const Action, end);
    Stage stage;
    stage.resultOf([&] {
        start(stage);
        QTRY_VERIFY_WITH_TIMEOUT(stage.sound.openedCount > stage.sound.closedCount, bound);
        end(stage);
    });
    QVERIFY(stage.isQuiet());
}

void TestInteractionDialog::noSignalFollowsTheEnd()
{
    Stage stage;
    QSignalSpy finished(stage.dialog.get(), &QDialog::finished);
    stage.resultOf([&] {
        stage.goToRecordPage();
        stage.click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 1, bound);
        stage.close().click();
    });
    QTest::qWait(1500); // the next tick of the page would come in here
    QCOMPARE(finished.size(), 1);
    QCOMPARE(stage.dialog->result(), 5);
}

void TestInteractionDialog::isDraggedByItsHeader_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void TestInteractionDialog::isDraggedByItsHeader()
{
    QFETCH(const Qt::MouseButton, button);
    Stage stage;
    stage.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(stage.dialog.get()));
    const QPoint before = stage.dialog->pos();
    const QPoint start = named<QWidget>(*stage.dialog, "microphone_test_header_label")->geometry().center();
    QTest::mousePress(stage.dialog.get(), button, {}, start);
    QCOMPARE(stage.dialog->cursor().shape(), Qt::ClosedHandCursor);
    QMouseEvent move(QEvent::MouseMove, start + QPoint(30, 20), stage.dialog->mapToGlobal(start) + QPoint(30, 20), Qt::NoButton,
                     button, {});
    QCoreApplication::sendEvent(stage.dialog.get(), &move);
    QTRY_COMPARE_WITH_TIMEOUT(stage.dialog->pos(), before + QPoint(30, 20), bound);
    QTest::mouseRelease(stage.dialog.get(), button, {}, start);
    QCOMPARE(stage.dialog->cursor().shape(), Qt::ArrowCursor);
    QCoreApplication::sendEvent(stage.dialog.get(), &move);
    QCOMPARE(stage.dialog->pos(), before + QPoint(30, 20));
}

void TestInteractionDialog::isNotDraggedByAnythingElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("close button") << QStringLiteral("microphone_test_header_close");
    QTest::newRow("pages") << QStringLiteral("microphone_test_popups_space");
    QTest::newRow("footer") << QStringLiteral("microphone_test_footer");
}

void TestInteractionDialog::isNotDraggedByAnythingElse()
{
    QFETCH(const QString, name);
    Stage stage;
    stage.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(stage.dialog.get()));
    const QWidget *widget = stage.dialog->findChild<QWidget *>(name);
    const QPoint place = widget->mapTo(stage.dialog.get(), widget->rect().center());
    QTest::mousePress(stage.dialog.get(), Qt::LeftButton, {}, place);
    QVERIFY(stage.dialog->cursor().shape() != Qt::ClosedHandCursor);
}

void TestInteractionDialog::isCentredOnAParentThatItGetsLater()
{
    Stage stage;
    QWidget window;
    window.setGeometry(100, 60, 700, 500);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QWidget child(&window);
    stage.dialog->setParent(&child, stage.dialog->windowFlags());
    stage.dialog->show();
    const QPoint expected = window.frameGeometry().topLeft() + (window.rect().center() - stage.dialog->rect().center());
    QTRY_COMPARE_WITH_TIMEOUT(stage.dialog->pos(), expected, bound);
    stage.dialog.reset(); // before its parent
}

void TestInteractionDialog::pagesCoverTheWholeDialog()
{
    Stage stage;
    stage.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(stage.dialog.get()));
    const QImage image = stage.dialog->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QImage behind(image.size(), QImage::Format_ARGB32);
    behind.fill(Qt::transparent);
    stage.dialog->render(&behind, {}, {}, QWidget::DrawChildren);
    for (int y = 0; y < behind.height(); ++y) {
        for (int x = 0; x < behind.width(); ++x)
            QVERIFY2(qAlpha(behind.pixel(x, y)) == 255, qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
    }
}

void TestInteractionDialog::nothingCoversTheBackgroundOfTheList()
{
    Stage stage;
    stage.dialog->setStyleSheet(
        QStringLiteral("QWidget#microphone_test_selection_radio_buttons_space { background-color: #123456; }"));
    stage.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(stage.dialog.get()));
    QWidget *list = named<QWidget>(*stage.dialog, "microphone_test_selection_radio_buttons_space");
    const QImage image = stage.dialog->grab().toImage();
    const QPoint corner = list->mapTo(stage.dialog.get(), list->rect().bottomRight() - QPoint(12, 4));
    QCOMPARE(image.pixelColor(corner), QColor(0x12, 0x34, 0x56));
}

void TestInteractionDialog::theFocusBeginsOnThePage()
{
    Stage stage;
    stage.dialog->show();
    stage.dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.dialog.get()));
    QVERIFY(stage.dialog->focusWidget() != nullptr);
    QVERIFY2(stage.select().isAncestorOf(stage.dialog->focusWidget()), "a Space would close the dialog");
}

void TestInteractionDialog::noButtonIsADefaultOne()
{
    Stage stage;
    stage.dialog->show();
    const QList<QPushButton *> buttons = stage.dialog->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 8);
    for (const QPushButton *button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    QCOMPARE(stage.close().cursor().shape(), Qt::PointingHandCursor);
}

void TestInteractionDialog::screenReadersGetTheNameOfTheCloseButton()
{
    Stage stage;
    QAccessibleInterface *close = QAccessible::queryAccessibleInterface(&stage.close());
    QCOMPARE(close->role(), QAccessible::Button);
    QCOMPARE(close->text(QAccessible::Name), QStringLiteral("CANCEL"));
}

QTEST_MAIN(TestInteractionDialog)
#include "tst_interaction_dialog.moc"
