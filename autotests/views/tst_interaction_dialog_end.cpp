// SPDX-License-Identifier: Apache-2.0
#include "views/interaction_dialog.h"

#include "audio/worker_status.h"
#include "autotests/views/dialog_stage.h"

#include <QAccessible>
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
#include <QStringList>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

using namespace ostra;
using namespace dialog_stage;
using page_probe::named;

namespace {

/// A host that wants the test to stop, and at whose question other ends are under way.
class StoppingHost final : public TestContext {
public:
    StoppingHost(std::function<void()> before, std::function<void()> after)
        : before_(std::move(before)), after_(std::move(after))
    {}
    SystemComponent *component() override { return nullptr; }
    MessageSink *messages() override { return nullptr; }
    ProgressReporter *reporter() override { return nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override;
    EventSource *events() override { return nullptr; }

private:
    std::function<void()> before_;
    std::function<void()> after_;
};

bool StoppingHost::continueOnOutcome()
{
    before_();
    QCoreApplication::sendPostedEvents();
    after_();
    return true;
}

// In the order of the letters: the user's close (c), or the report of a worker and the tick behind it, for a loss (l), or for a
// success and the user's word that it was heard (t).
void queueEnds(Stage &stage, const QString &ends)
{
    const auto queue = [&stage](const Action action) {
        QMetaObject::invokeMethod(
            stage.dialog.get(), [&stage, action] { action(stage); }, Qt::QueuedConnection);
    };
    for (const QChar end : ends) {
        if (end == u'c') {
            queue([](Stage &ended) { ended.close().click(); });
            continue;
        }
        queue(end == u't' ? Action([](Stage &ended) { ended.play().set_result_status(audio::worker_status::finished); })
                          : Action([](Stage &ended) { ended.play().set_result_status(audio::worker_status::disconnected); }));
        queue([](Stage &ended) { ended.play().OnTimerTick(); });
        if (end == u't')
            queue([](Stage &ended) { ended.play().OnBtnNextClicked(); });
    }
}

// A host's filter that lets no window be closed.
class CloseKeeper final : public QObject {
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() != QEvent::Close)
            return false;
        ++keptCount;
        event->ignore();
        return true;
    }
    int keptCount = 0;
};

} // namespace

class TestInteractionDialogEnd : public QObject {
    Q_OBJECT

private slots:
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
    void theFirstOfEndsInOneTurnCounts_data();
    void theFirstOfEndsInOneTurnCounts();
    void isHiddenWhereAFilterKeepsItOpen();
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

void TestInteractionDialogEnd::anEventDuringARecordingClosesIt()
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

void TestInteractionDialogEnd::anEventThatIsNoReasonDoesNotCloseIt()
{
    Stage stage;
    stage.events.flags = ~0x1FBU;
    stage.dialog->show();
    QTRY_VERIFY_WITH_TIMEOUT(stage.events.askedCount > 4, bound);
    stage.dialog->CheckSystemEvent();
    QCoreApplication::processEvents();
    QVERIFY(stage.dialog->isVisible());
}

void TestInteractionDialogEnd::asksForEventsTwiceASecond()
{
    Stage stage;
    stage.events.askedCount = 0;
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(stage.events.askedCount >= 3, bound);
    QVERIFY2(timer.elapsed() >= 1200, "three times in less than three intervals");
}

void TestInteractionDialogEnd::anEventAtAChangeOfTheWindowCancels()
{
    Stage stage;
    const int result = stage.resultOf([&] {
        stage.events.flags = 1;
        stage.dialog->setWindowTitle(QStringLiteral("changed"));
    });
    QCOMPARE(result, 2);
}

void TestInteractionDialogEnd::anEventBeforeTheLoopCancels()
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

void TestInteractionDialogEnd::worksWithoutAnEventSource()
{
    const FakeSound sound;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    dialog.CheckSystemEvent();
    dialog.setWindowTitle(QStringLiteral("changed"));
    QCoreApplication::processEvents();
    QVERIFY(!dialog.hasFinished());
}

void TestInteractionDialogEnd::closingIsToldOnce()
{
    Stage stage;
    QSignalSpy closing(stage.dialog.get(), &InteractionDialog::closing);
    stage.resultOf([&] { stage.dialog->Cancel(); });
    QCOMPARE(closing.size(), 1);
}

void TestInteractionDialogEnd::closingStopsWhatRuns_data()
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

void TestInteractionDialogEnd::closingStopsWhatRuns()
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

void TestInteractionDialogEnd::noSignalFollowsTheEnd()
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

void TestInteractionDialogEnd::theFirstOfEndsInOneTurnCounts_data()
{
    QTest::addColumn<QString>("ends"); // w: the watcher
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("isLost");
    const std::pair<const char *, int> orders[] = {{"tcw", 1}, {"twc", 1}, {"ctw", 5}, {"cwt", 5}, {"wtc", 1}, {"wct", 5},
                                                   {"clw", 5}, {"cwl", 5}, {"wcl", 5}, {"ccw", 5}, {"ttw", 1}};
    for (const auto &[ends, result] : orders)
        QTest::newRow(ends) << QString::fromLatin1(ends) << result << false;
    for (const char *ends : {"lcw", "lwc", "wlc", "ltw"})
        QTest::newRow(ends) << QString::fromLatin1(ends) << 5 << true;
}

void TestInteractionDialogEnd::theFirstOfEndsInOneTurnCounts()
{
    QFETCH(const QString, ends);
    QFETCH(const bool, isLost);
    const QStringList parts = ends.split(u'w');
    Stage stage;
    StoppingHost host([&] { queueEnds(stage, parts.at(0)); }, [&] { queueEnds(stage, parts.at(1)); });
    QSignalSpy finished(stage.dialog.get(), &QDialog::finished);
    QSignalSpy closing(stage.dialog.get(), &InteractionDialog::closing);
    const int result = stage.resultOf([&] {
        stage.goToPlayPage();
        QTRY_COMPARE_WITH_TIMEOUT(stage.sound.openedCount.load(), 2, bound);
        stage.dialog->setCancellationWatcher(&host);
    });
    // A watcher that comes first ends the loop only, and tells so; the dialog ends behind that.
    const bool isStoppedFirst = parts.at(0).isEmpty();
    if (isStoppedFirst)
        QCOMPARE(result, 0);
    else
        QTEST(result, "result");
    QCoreApplication::processEvents();
    QTEST(stage.dialog->result(), "result");
    QCOMPARE(stage.dialog->isDeviceDisconnected(), isLost);
    QVERIFY(!stage.dialog->isAborted() && !stage.dialog->isVisible() && stage.isQuiet());
    QCOMPARE(finished.size(), isStoppedFirst ? 2 : 1);
    QCOMPARE(closing.size(), finished.size());
    QTEST(finished.last().first().toInt(), "result");
}

void TestInteractionDialogEnd::isHiddenWhereAFilterKeepsItOpen()
{
    Stage stage;
    CloseKeeper keeper;
    qApp->installEventFilter(&keeper);
    const int result = stage.resultOf([&] { stage.dialog->Cancel(); });
    QCOMPARE(result, int(dialog_result::cancelled));
    QCOMPARE(keeper.keptCount, 1);
    QVERIFY(!stage.dialog->isVisible());
}

void TestInteractionDialogEnd::isDraggedByItsHeader_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void TestInteractionDialogEnd::isDraggedByItsHeader()
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

void TestInteractionDialogEnd::isNotDraggedByAnythingElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("close button") << QStringLiteral("microphone_test_header_close");
    QTest::newRow("pages") << QStringLiteral("microphone_test_popups_space");
    QTest::newRow("footer") << QStringLiteral("microphone_test_footer");
}

void TestInteractionDialogEnd::isNotDraggedByAnythingElse()
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

void TestInteractionDialogEnd::isCentredOnAParentThatItGetsLater()
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

void TestInteractionDialogEnd::pagesCoverTheWholeDialog()
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

void TestInteractionDialogEnd::nothingCoversTheBackgroundOfTheList()
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

void TestInteractionDialogEnd::theFocusBeginsOnThePage()
{
    Stage stage;
    stage.dialog->show();
    stage.dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.dialog.get()));
    QVERIFY(stage.dialog->focusWidget() != nullptr);
    QVERIFY2(stage.select().isAncestorOf(stage.dialog->focusWidget()), "a Space would close the dialog");
}

void TestInteractionDialogEnd::noButtonIsADefaultOne()
{
    Stage stage;
    stage.dialog->show();
    const QList<QPushButton *> buttons = stage.dialog->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 8);
    for (const QPushButton *button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    QCOMPARE(stage.close().cursor().shape(), Qt::PointingHandCursor);
}

void TestInteractionDialogEnd::screenReadersGetTheNameOfTheCloseButton()
{
    Stage stage;
    QAccessibleInterface *close = QAccessible::queryAccessibleInterface(&stage.close());
    QCOMPARE(close->role(), QAccessible::Button);
    QCOMPARE(close->text(QAccessible::Name), QStringLiteral("CANCEL"));
}

QTEST_MAIN(TestInteractionDialogEnd)
#include "tst_interaction_dialog_end.moc"
