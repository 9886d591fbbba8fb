// SPDX-License-Identifier: Apache-2.0
#include "host/gui/run_bar.h"
#include "host/gui/run_keys.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <memory>

namespace {

constexpr int patienceMilliseconds = 5000;

// As a mouse does it: through the window system's own entry, where a locked window hears nothing.
void clickLikeAMouse(const QWidget &button)
{
    QWindow *window = button.window()->windowHandle();
    const QPoint middle = button.mapTo(button.window(), button.rect().center());
    QTest::mouseClick(window, Qt::LeftButton, {}, middle);
}

/// A main window, the bar and the keys, as the program has them, and a dialog as a test opens it.
struct Windows {
    explicit Windows(bool hasEvents = true) : bar(&mainWindow, hasEvents), keys(hasEvents)
    {
        mainButton.setParent(&mainWindow);
        qApp->installEventFilter(&keys);
        mainWindow.show();
        bar.setRunning(true);
        keys.setRunning(true);
        dialog.setModal(true);
        dialog.resize(300, 200);
    }

    void open()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTRY_VERIFY_WITH_TIMEOUT(bar.isVisible(), patienceMilliseconds);
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
    }

    QWidget mainWindow;
    QPushButton mainButton{QStringLiteral("main")};
    host::RunBar bar;
    host::RunKeys keys;
    QDialog dialog;
};

} // namespace

class TestRunBar : public QObject {
    Q_OBJECT

private slots:
    void stopsByMouseWhileADialogLocksTheMainWindow();
    void followsTheNextDialog();
    void staysAwayWithoutADialogOrARun();
    void survivesTheEndOfItsDialog();
    void choosesEventsFromItsMenu();
    void hasNoEventsForUsers();
    void stopsByKeysInADialog();
    void simulatesEventsByKeysInADialog();
    void leavesTheKeysAloneOutsideOfARun();
    void leavesEventKeysAloneForUsers();
    void takesNoOtherKeys();
};

void TestRunBar::stopsByMouseWhileADialogLocksTheMainWindow()
{
    Windows windows;
    windows.open();
    const QSignalSpy mainClicked(&windows.mainButton, &QPushButton::clicked);
    const QSignalSpy stopped(&windows.bar, &host::RunBar::stopPressed);
    clickLikeAMouse(windows.mainButton);
    QCOMPARE(mainClicked.size(), 0); // otherwise the bar would not be needed
    clickLikeAMouse(*windows.bar.findChild<QPushButton *>(QStringLiteral("host_run_bar_stop")));
    QCOMPARE(stopped.size(), 1);
}

void TestRunBar::followsTheNextDialog()
{
    Windows windows;
    windows.open();
    QDialog second;
    second.setModal(true);
    windows.dialog.hide();
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&second));
    QTRY_COMPARE_WITH_TIMEOUT(windows.bar.windowHandle()->transientParent(), second.windowHandle(), patienceMilliseconds);
    const QSignalSpy stopped(&windows.bar, &host::RunBar::stopPressed);
    QVERIFY(QTest::qWaitForWindowExposed(&windows.bar));
    clickLikeAMouse(*windows.bar.findChild<QPushButton *>(QStringLiteral("host_run_bar_stop")));
    QCOMPARE(stopped.size(), 1);
}

void TestRunBar::staysAwayWithoutADialogOrARun()
{
    Windows windows;
    QVERIFY(!windows.bar.isVisible());
    windows.open();
    windows.dialog.hide();
    QTRY_VERIFY_WITH_TIMEOUT(!windows.bar.isVisible(), patienceMilliseconds);
    windows.bar.setRunning(false);
    windows.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&windows.dialog));
    QCoreApplication::processEvents();
    QVERIFY(!windows.bar.isVisible());
}

void TestRunBar::survivesTheEndOfItsDialog()
{
    Windows windows;
    windows.open();
    windows.dialog.hide();
    auto shortLived = std::make_unique<QDialog>();
    shortLived->setModal(true);
    shortLived->show();
    QTRY_COMPARE_WITH_TIMEOUT(windows.bar.windowHandle()->transientParent(), shortLived->windowHandle(), patienceMilliseconds);
    shortLived.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!windows.bar.isVisible(), patienceMilliseconds);
}

void TestRunBar::choosesEventsFromItsMenu()
{
    Windows windows;
    const QSignalSpy chosen(&windows.bar, &host::RunBar::eventChosen);
    const auto *menu = windows.bar.findChild<QMenu *>();
    QCOMPARE(menu->actions().size(), 10);
    for (QAction *entry : menu->actions())
        entry->trigger();
    QCOMPARE(chosen.size(), 10);
    for (int bit = 0; bit < 10; ++bit)
        QCOMPARE(chosen[bit][0].toInt(), bit);
}

void TestRunBar::hasNoEventsForUsers()
{
    const Windows windows(false);
    QVERIFY(windows.bar.findChild<QMenu *>() == nullptr);
}

void TestRunBar::stopsByKeysInADialog()
{
    Windows windows;
    windows.open();
    const QSignalSpy stopped(&windows.keys, &host::RunKeys::stopPressed);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(stopped.size(), 1);
}

void TestRunBar::simulatesEventsByKeysInADialog()
{
    Windows windows;
    windows.open();
    const QSignalSpy pressed(&windows.keys, &host::RunKeys::eventPressed);
    for (int bit = 0; bit < 10; ++bit)
        QTest::keyClick(windows.dialog.windowHandle(), static_cast<Qt::Key>(Qt::Key_F1 + bit),
                        Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(pressed.size(), 10);
    for (int bit = 0; bit < 10; ++bit)
        QCOMPARE(pressed[bit][0].toInt(), bit);
}

void TestRunBar::leavesTheKeysAloneOutsideOfARun()
{
    Windows windows;
    windows.open();
    windows.keys.setRunning(false);
    const QSignalSpy stopped(&windows.keys, &host::RunKeys::stopPressed);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(stopped.size(), 0);
}

void TestRunBar::leavesEventKeysAloneForUsers()
{
    Windows windows(false);
    windows.open();
    const QSignalSpy pressed(&windows.keys, &host::RunKeys::eventPressed);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_F1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(pressed.size(), 0);
}

void TestRunBar::takesNoOtherKeys()
{
    Windows windows;
    windows.open();
    const QSignalSpy stopped(&windows.keys, &host::RunKeys::stopPressed);
    const QSignalSpy pressed(&windows.keys, &host::RunKeys::eventPressed);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_S);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
    QTest::keyClick(windows.dialog.windowHandle(), Qt::Key_F11, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(stopped.size() + pressed.size(), 0);
}

QTEST_MAIN(TestRunBar)
#include "tst_run_bar.moc"
