// SPDX-License-Identifier: Apache-2.0
#include "tests/dialog/input_dialog.h"

#include "contract/test_context.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <stdexcept>

using ostra::InputDialog;

namespace {

constexpr int giveUpResult = 99;
constexpr int giveUpTime = 30'000; // ms; a loop that nobody else ends

class Watcher final : public ostra::TestContext {
public:
    ostra::SystemComponent *component() override { return nullptr; }
    ostra::MessageSink *messages() override { return nullptr; }
    ostra::ProgressReporter *reporter() override { return nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override
    {
        askedAt.append(clock.elapsed());
        if (whenAsked)
            whenAsked();
        if (throws)
            throw std::runtime_error("the host is gone");
        return wantsStop;
    }
    ostra::EventSource *events() override { return nullptr; }

    bool wantsStop = false;
    bool throws = false;
    std::function<void()> whenAsked;
    QList<qint64> askedAt; ///< ms since `clock` was started
    QElapsedTimer clock;
};

// Sees the events of the dialog that it is installed on.
class Filter final : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        types.append(event->type());
        if (event->type() == QEvent::Show && onShow)
            onShow();
        return false;
    }
    QList<QEvent::Type> types;
    std::function<void()> onShow;
};

QStringList debugLines;

void keepDebugLine(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg)
        debugLines.append(text);
}

// Debug lines are collected while it lives.
class DebugLines {
public:
    DebugLines() : previous_(qInstallMessageHandler(&keepDebugLine)) { debugLines.clear(); }
    ~DebugLines() { qInstallMessageHandler(previous_); }
    DebugLines(const DebugLines &) = delete;
    DebugLines &operator=(const DebugLines &) = delete;

private:
    QtMessageHandler previous_;
};

// Runs the dialog; `action` is called from inside its loop. A loop that does not end by itself ends with `giveUpResult`.
int run(InputDialog &dialog, const std::function<void()> &action, int delay = 0)
{
    if (action)
        QTimer::singleShot(delay, &dialog, action);
    QTimer::singleShot(giveUpTime, &dialog, [&dialog] { dialog.done(giveUpResult); });
    return dialog.exec();
}

// Runs the dialog for a time that begins with its loop, however long its window took to appear.
int runFor(InputDialog &dialog, int milliseconds, QElapsedTimer &clock)
{
    return run(dialog, [&dialog, &clock, milliseconds] {
        clock.start();
        QTimer::singleShot(milliseconds, &dialog, [&dialog] { dialog.accept(); });
    });
}

} // namespace

class TestInputDialog : public QObject {
    Q_OBJECT

private slots:
    void isATopLevelWindowThatOnlyItsOwnerDeletes();
    void installsTheEventFilter();
    void managesWithoutAnEventFilter();
    void writesThreeDebugLines_data();
    void writesThreeDebugLines();
    void returnsTheResult_data();
    void returnsTheResult();
    void isShownWithTheModalityItWasGiven();
    void asksTheWatcherOnceASecond();
    void neverAsksAWatcherThatIsNull();
    void aWatcherThatSaysYesLeavesTheDialogVisible();
    void aWatcherThatThrowsEndsTheLoop();
    void aWatcherThatFailsBehindAnEndChangesNothing();
    void aListenerThatThrowsAtTheEndIsToldAgain_data();
    void aListenerThatThrowsAtTheEndIsToldAgain();
    void raisesAboveAllOthersAndHidesAgain();
    void losesTheStayOnTopFlagByTheRaise();
    void aDialogFinishedDuringTheRaiseDoesNotHang();
    void aDialogClosedDuringItsShowDoesNotHang();
    void aDialogThatFinishedIsNotRunAgain();
    void returnsWhenTheDialogIsDestroyed_data();
    void returnsWhenTheDialogIsDestroyed();
    void isNotDeletedByExec();
    void aSecondDialogRunsAfterTheLastWindowClosed();
};

void TestInputDialog::isATopLevelWindowThatOnlyItsOwnerDeletes()
{
    QWidget host;
    const InputDialog dialog(&host, nullptr);
    QVERIFY(dialog.parent() == nullptr);
    QVERIFY(dialog.isWindow());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(!dialog.isVisible());
}

void TestInputDialog::installsTheEventFilter()
{
    Filter filter;
    InputDialog dialog(nullptr, &filter);
    dialog.setTitle(QStringLiteral("title"));
    QCOMPARE(dialog.title(), QStringLiteral("title"));
    QCOMPARE(run(dialog, [&dialog] { dialog.accept(); }), 1);
    QVERIFY(filter.types.contains(QEvent::Show));
    QVERIFY(filter.types.contains(QEvent::Hide));
}

void TestInputDialog::managesWithoutAnEventFilter()
{
    InputDialog dialog(nullptr, nullptr);
    QCOMPARE(run(dialog, [&dialog] { dialog.accept(); }), 1);
}

void TestInputDialog::writesThreeDebugLines_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::addColumn<QStringList>("lines");
    const QStringList before{QStringLiteral("Before show: 0"), QStringLiteral("Before loop: 0")};
    QTest::newRow("accepted") << false << (before + QStringList{QStringLiteral("After the event loop: 1")});
    QTest::newRow("Escape") << true << (before + QStringList{QStringLiteral("After the event loop: 0")});
}

void TestInputDialog::writesThreeDebugLines()
{
    QFETCH(bool, byEscape);
    InputDialog dialog(nullptr, nullptr);
    const DebugLines collecting;
    const int result = run(dialog, [&] { byEscape ? QTest::keyClick(&dialog, Qt::Key_Escape) : dialog.accept(); });
    QCOMPARE(result, byEscape ? 0 : 1);
    QTEST(debugLines, "lines");
}

void TestInputDialog::returnsTheResult_data()
{
    QTest::addColumn<int>("result");
    for (const int result : {0, 1, 2, 5})
        QTest::addRow("%d", result) << result;
}

void TestInputDialog::returnsTheResult()
{
    QFETCH(int, result);
    InputDialog dialog(nullptr, nullptr);
    QCOMPARE(run(dialog, [&] { dialog.done(result); }), result);
    QCOMPARE(dialog.result(), result);
    QVERIFY(dialog.hasFinished());
    QVERIFY(!dialog.isVisible());
}

void TestInputDialog::isShownWithTheModalityItWasGiven()
{
    InputDialog dialog(nullptr, nullptr);
    dialog.setWindowModality(Qt::ApplicationModal);
    bool wasVisible = false;
    Qt::WindowModality modality = Qt::NonModal;
    run(dialog, [&] {
        wasVisible = dialog.isVisible() && QApplication::activeModalWidget() == &dialog;
        modality = dialog.windowModality();
        dialog.accept();
    });
    QVERIFY(wasVisible);
    QCOMPARE(modality, Qt::ApplicationModal);
}

void TestInputDialog::asksTheWatcherOnceASecond()
{
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    dialog.setCancellationWatcher(&watcher);
    QCOMPARE(runFor(dialog, 3500, watcher.clock), 1);
    QCOMPARE(watcher.askedAt.size(), 3);
    for (qsizetype turn = 0; turn < 3; ++turn) {
        // Timers of this length may fire 5 % early, and the clock starts a little later than they.
        QVERIFY2(watcher.askedAt[turn] >= 900 * (turn + 1), qPrintable(QString::number(watcher.askedAt[turn])));
        QVERIFY2(watcher.askedAt[turn] < 1000 * (turn + 1) + 400, qPrintable(QString::number(watcher.askedAt[turn])));
    }
    QTest::qWait(1500);
    QCOMPARE(watcher.askedAt.size(), 3); // the timer is gone with the loop
}

void TestInputDialog::neverAsksAWatcherThatIsNull()
{
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    watcher.wantsStop = true;
    dialog.setCancellationWatcher(&watcher);
    dialog.setCancellationWatcher(nullptr);
    QCOMPARE(runFor(dialog, 2500, watcher.clock), 1);
    QVERIFY(watcher.askedAt.isEmpty());
}

void TestInputDialog::aWatcherThatSaysYesLeavesTheDialogVisible()
{
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    watcher.wantsStop = true;
    watcher.clock.start();
    dialog.setCancellationWatcher(&watcher);
    const QSignalSpy finished(&dialog, &QDialog::finished);
    const DebugLines collecting;
    QCOMPARE(run(dialog, [&watcher] { watcher.clock.restart(); }), 0);
    QVERIFY(watcher.clock.elapsed() < 5000);
    QCOMPARE(watcher.askedAt.size(), 1);
    QCOMPARE(finished, QList<QVariantList>{{0}});
    QCOMPARE(debugLines.constLast(), QStringLiteral("After the event loop: 0"));
    QCOMPARE(dialog.result(), 0);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.hasFinished());
}

void TestInputDialog::aWatcherThatThrowsEndsTheLoop()
{
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    watcher.throws = true;
    watcher.clock.start();
    dialog.setCancellationWatcher(&watcher);
    QCOMPARE(run(dialog, {}), 0);
    QCOMPARE(watcher.askedAt.size(), 1);
    QVERIFY(dialog.hasWatcherFailed());
}

void TestInputDialog::aWatcherThatFailsBehindAnEndChangesNothing()
{
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    watcher.throws = true;
    watcher.whenAsked = [&dialog] { dialog.done(5); }; // a host that runs a loop in which somebody ends the dialog
    watcher.clock.start();
    dialog.setCancellationWatcher(&watcher);
    const QSignalSpy finished(&dialog, &QDialog::finished);
    QCOMPARE(run(dialog, {}), 5);
    QCOMPARE(watcher.askedAt.size(), 1);
    QCOMPARE(finished, QList<QVariantList>{{5}});
    QVERIFY(!dialog.hasWatcherFailed());
}

void TestInputDialog::aListenerThatThrowsAtTheEndIsToldAgain_data()
{
    QTest::addColumn<bool>("always");
    QTest::newRow("once") << false;
    QTest::newRow("always") << true;
}

void TestInputDialog::aListenerThatThrowsAtTheEndIsToldAgain()
{
    QFETCH(const bool, always);
    InputDialog dialog(nullptr, nullptr);
    Watcher watcher;
    watcher.wantsStop = true;
    watcher.clock.start();
    dialog.setCancellationWatcher(&watcher);
    int toldCount = 0;
    connect(&dialog, &QDialog::finished, this, [&] {
        if (toldCount++ == 0 || always)
            throw std::runtime_error("the listener is gone");
    });
    try {
        QCOMPARE(run(dialog, {}), 0);
    } catch (...) {
        QFAIL("it came out of the event loop");
    }
    QCOMPARE(toldCount, 2);
    QCOMPARE(watcher.askedAt.size(), 1);
    QVERIFY(dialog.isVisible());
}

void TestInputDialog::raisesAboveAllOthersAndHidesAgain()
{
    Filter filter;
    InputDialog dialog(nullptr, &filter);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint, false);
    bool wasOnTop = false;
    int showCount = 0;
    filter.onShow = [&] {
        ++showCount;
        wasOnTop = dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    };
    dialog.raiseOnce();
    QCOMPARE(showCount, 1);
    QVERIFY(wasOnTop);
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.hasFinished());
}

void TestInputDialog::losesTheStayOnTopFlagByTheRaise()
{
    InputDialog dialog(nullptr, nullptr);
    dialog.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QCOMPARE(static_cast<int>(dialog.windowFlags()), 0x40803);
    dialog.raiseOnce();
    int flags = 0;
    run(dialog, [&] {
        flags = static_cast<int>(dialog.windowFlags());
        dialog.accept();
    });
    QCOMPARE(flags, 0x803);
}

void TestInputDialog::aDialogFinishedDuringTheRaiseDoesNotHang()
{
    Filter filter;
    InputDialog dialog(nullptr, &filter);
    filter.onShow = [&dialog] { dialog.done(2); };
    dialog.raiseOnce();
    filter.types.clear();
    QElapsedTimer clock;
    clock.start();
    const DebugLines collecting;
    QCOMPARE(run(dialog, {}), 2);
    QVERIFY(clock.elapsed() < 1000);
    QVERIFY(!filter.types.contains(QEvent::Show));
    QCOMPARE(debugLines, (QStringList{QStringLiteral("Before show: 2"), QStringLiteral("Before loop: 2"),
                                      QStringLiteral("After the event loop: 2")}));
}

void TestInputDialog::aDialogClosedDuringItsShowDoesNotHang()
{
    Filter filter;
    InputDialog dialog(nullptr, &filter);
    filter.onShow = [&dialog] { dialog.done(5); };
    QCOMPARE(run(dialog, {}), 5);
}

void TestInputDialog::aDialogThatFinishedIsNotRunAgain()
{
    InputDialog dialog(nullptr, nullptr);
    QCOMPARE(run(dialog, [&dialog] { dialog.accept(); }), 1);
    QCOMPARE(dialog.exec(), 1);
    QVERIFY(!dialog.isVisible());
}

void TestInputDialog::returnsWhenTheDialogIsDestroyed_data()
{
    QTest::addColumn<int>("doneWith"); // -1: destroyed without having finished
    QTest::addColumn<int>("result");
    QTest::newRow("while it runs") << -1 << 0;
    QTest::newRow("right after it finished") << 5 << 5;
}

void TestInputDialog::returnsWhenTheDialogIsDestroyed()
{
    QFETCH(int, doneWith);
    auto *dialog = new InputDialog(nullptr, nullptr);
    const QPointer<InputDialog> alive(dialog);
    const DebugLines collecting;
    const int result = run(*dialog, [dialog, doneWith] {
        if (doneWith >= 0)
            dialog->done(doneWith);
        QTimer::singleShot(0, qApp, [dialog] { delete dialog; });
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    });
    QVERIFY(alive.isNull());
    QTEST(result, "result");
    QCOMPARE(debugLines.size(), 3);
}

void TestInputDialog::isNotDeletedByExec()
{
    auto dialog = std::make_unique<InputDialog>(nullptr, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<InputDialog> alive(dialog.get());
    QCOMPARE(run(*dialog, [&dialog] { dialog->done(5); }), 5);
    QTest::qWait(50); // a deletion that was put off would happen here
    QVERIFY(!alive.isNull());
    QVERIFY(dialog->testAttribute(Qt::WA_DeleteOnClose)); // back in force
}

void TestInputDialog::aSecondDialogRunsAfterTheLastWindowClosed()
{
    QVERIFY(QApplication::quitOnLastWindowClosed());
    int firstResult = -1;
    int secondResult = -1;
    // Inside the application's own loop, as in a host: outside of it nothing is quit automatically.
    QTimer::singleShot(0, qApp, [&] {
        InputDialog first(nullptr, nullptr);
        firstResult = run(first, [&first] { first.accept(); });
        QApplication::processEvents(); // showing the second at once would take back an order to quit
        InputDialog second(nullptr, nullptr);
        secondResult = run(
            second, [&second] { second.accept(); }, 200);
        QApplication::exit(3);
    });
    QCOMPARE(QApplication::exec(), 3);
    QCOMPARE(firstResult, 1);
    QCOMPARE(secondResult, 1); // 0 when the end of the first had told the application to quit
}

QTEST_MAIN(TestInputDialog)
#include "tst_input_dialog.moc"
