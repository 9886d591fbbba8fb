// SPDX-License-Identifier: Apache-2.0
#include "host/gui/interrupt_watcher.h"

#include "autotests/host/gui/fake_module.h"
#include "host/core/language_setting.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/main_window.h"

#include <QDir>
#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <signal.h>

namespace {

constexpr int patienceMilliseconds = 10'000;

bool isDefault(int number)
{
    struct sigaction action = {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

} // namespace

class TestInterruptLinux : public QObject {
    Q_OBJECT

private slots:
    void tellsWhichSignalCame_data();
    void tellsWhichSignalCame();
    void catchesEachSignalOnlyOnce();
    void givesTheSystemsHandlingBack();
    void stopsTheRunAndEndsTheProgram();
};

void TestInterruptLinux::tellsWhichSignalCame_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("code");
    QTest::newRow("SIGINT") << SIGINT << 130;
    QTest::newRow("SIGTERM") << SIGTERM << 143;
}

void TestInterruptLinux::tellsWhichSignalCame()
{
    QFETCH(const int, number);
    const host::InterruptWatcher watcher;
    QSignalSpy interrupted(&watcher, &host::InterruptWatcher::interrupted);
    QCOMPARE(::raise(number), 0);
    QVERIFY(interrupted.wait(patienceMilliseconds));
    QTEST(interrupted[0][0].toInt(), "code");
}

void TestInterruptLinux::catchesEachSignalOnlyOnce()
{
    const host::InterruptWatcher watcher;
    QVERIFY(!isDefault(SIGINT));
    QCOMPARE(::raise(SIGINT), 0);
    QVERIFY(isDefault(SIGINT)); // a second one ends the process
    QVERIFY(!isDefault(SIGTERM));
}

void TestInterruptLinux::givesTheSystemsHandlingBack()
{
    {
        const host::InterruptWatcher watcher;
        QVERIFY(!isDefault(SIGTERM));
    }
    QVERIFY(isDefault(SIGINT) && isDefault(SIGTERM));
}

void TestInterruptLinux::stopsTheRunAndEndsTheProgram()
{
    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    host::LanguageSetting language;
    QVERIFY(language.useOwnFolder(folder.path()));
    FakeModule module;
    host::DialogPrompter prompter;
    host::TestSession session(module.interface(), prompter, folder.path());
    host::MainWindow window(session, language, {}, false);
    const host::InterruptWatcher watcher;
    connect(&watcher, &host::InterruptWatcher::interrupted, &window, &host::MainWindow::quit);
    session.refresh();
    module.playback = [](ostra::TestContext &context) {
        ::raise(SIGINT);
        const bool isStopped = QTest::qWaitFor([&context] { return context.continueOnOutcome(); }, patienceMilliseconds);
        return isStopped ? ostra::result::passed : ostra::result::failed;
    };
    std::optional<host::RunRecord> record;
    QTimer::singleShot(0, &window, [&] {
        record = session.run(0, 0, language.code());
        window.quit(4); // as an unattended run ends: with the verdict
    });
    QCOMPARE(QCoreApplication::exec(), 130);
    QVERIFY(record.has_value());
    QCOMPARE(record->moduleCode, 0U);
    QCOMPARE(record->code, 4U);
    QVERIFY(QDir::setCurrent(before));
}

QTEST_MAIN(TestInterruptLinux)
#include "tst_interrupt_linux.moc"
