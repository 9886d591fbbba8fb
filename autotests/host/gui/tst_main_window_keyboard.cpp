// SPDX-License-Identifier: Apache-2.0
// Where the keyboard is in the host's window.
#include "autotests/host/gui/shown_program.h"
#include "host/translations/translators.h"

#include <QDir>
#include <QObject>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

class TestMainWindowKeyboard : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void init() { before_ = QDir::currentPath(); }
    void cleanup() { QVERIFY(QDir::setCurrent(before_)); }
    void tabsInTheOrderOfSight();
    void keepsTheKeyboardAtTheRun();

private:
    QString before_;
};

void TestMainWindowKeyboard::tabsInTheOrderOfSight()
{
    ShownProgram program;
    QVERIFY(QTest::qWaitForWindowExposed(&program.window));
    program.module.playback = [](ostra::TestContext &context) {
        context.messages()->addMessage("KEY", 2, 0);
        return ostra::result::failed;
    };
    QVERIFY(program.session.run(0, 0, QStringLiteral("en_US"))); // an empty list of messages is left out
    program.find<QTableWidget>("host_devices")->setFocus();
    QStringList order;
    for (int step = 0; step < 20 && !order.contains(program.window.focusWidget()->objectName()); ++step) {
        order.append(program.window.focusWidget()->objectName());
        QTest::keyClick(program.window.focusWidget(), Qt::Key_Tab);
    }
    order.removeAll(QStringLiteral("qt_tabwidget_tabbar"));
    const QStringList expected{QStringLiteral("host_devices"),         QStringLiteral("host_refresh"),
                               QStringLiteral("host_tests"),           QStringLiteral("host_run"),
                               QStringLiteral("host_result_messages"), QStringLiteral("host_log")};
    QCOMPARE(order, expected);
}

// Left to itself it would go on to whichever widget is next, or stay where nothing shows it.
void TestMainWindowKeyboard::keepsTheKeyboardAtTheRun()
{
    ShownProgram program;
    QVERIFY(QTest::qWaitForWindowExposed(&program.window));
    QString during;
    program.module.playback = [&](ostra::TestContext &) {
        during = program.window.focusWidget()->objectName();
        return ostra::result::passed;
    };
    program.find<QPushButton>("host_run")->setFocus();
    QVERIFY(program.session.run(0, 0, QStringLiteral("en_US")));
    QCOMPARE(during, QStringLiteral("host_stop"));
    QCOMPARE(program.window.focusWidget()->objectName(), QStringLiteral("host_run"));
    QCOMPARE(program.find<QWidget>("host_result_messages")->focusPolicy(), Qt::NoFocus); // there are none
    QCOMPARE(program.find<QWidget>("host_history")->focusPolicy(), Qt::StrongFocus);
}

QTEST_MAIN(TestMainWindowKeyboard)
#include "tst_main_window_keyboard.moc"
