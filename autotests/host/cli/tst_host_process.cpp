// SPDX-License-Identifier: Apache-2.0
#include "host/cli/host_process.h"

#include "host/cli/console.h"
#include "host/core/run_reason.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QTest>

using namespace std::chrono_literals;

namespace {

// Beside this test.
QString standIn() { return QCoreApplication::applicationDirPath() + QStringLiteral("/ending_host"); }

} // namespace

// What is believed of a process that may have ended for any reason.
class TestHostProcess : public QObject {
    Q_OBJECT

private slots:
    void believesWhatWasWrittenDown_data();
    void believesWhatWasWrittenDown();
    void tellsThatItCannotBeStarted();
    void endsAHostThatHangs();
    void leavesRoomForTheHostsOwnLimit();
    void isEndedBeforeTheExampleGivesUp();
};

void TestHostProcess::believesWhatWasWrittenDown_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("reason");
    const auto add = [](const char *name, const char *end, int code, const char *reason = "") {
        QTest::newRow(name) << QByteArray(end) << code << QByteArray(reason);
    };
    add("passed", "write=0 exit=0", 0);
    add("failed", "write=1 exit=1", 1);
    add("cannot be performed", "write=3 exit=3", 3);
    add("not completed", "write=4 exit=4", 4);
    add("invalid call", "write=6 exit=6", 6);
    add("wrong usage", "exit=2", 2);
    add("no module", "exit=6", 6, "REASON_NO_MODULE");
    add("stopped by another", "write=4 exit=143", 4);
    add("no display", "write=no_display exit=3", 3, "REASON_NO_DISPLAY");
    add("no display, another code", "write=no_display exit=1", 4, "REASON_HOST_BROKE_DOWN");
    for (const char *end : {"exit=0", "exit=1", "exit=3", "exit=4", "exit=77", "exit=127", "exit=130", "exit=143", "abort",
                            "write=0 exit=1", "write=1 exit=0", "write=1 abort", "write= exit=0", "write=none exit=1"})
        add(end, end, 4, "REASON_HOST_BROKE_DOWN");
}

void TestHostProcess::believesWhatWasWrittenDown()
{
    QFETCH(const QByteArray, end);
    QFETCH(const QByteArray, reason);
    qputenv("HOST_END", end);
    host::Console console;
    const host::HostEnd found = host::performHost(standIn(), {}, console);
    QTEST(static_cast<int>(found.code), "code");
    QCOMPARE(found.reason, reason.isEmpty() ? QString() : host::reasonWords(reason.constData()));
}

void TestHostProcess::tellsThatItCannotBeStarted()
{
    host::Console console;
    const host::HostEnd end = host::performHost(standIn() + QStringLiteral("-that-is-not-there"), {}, console);
    QCOMPARE(end.code, host::ExitCode::noModule);
    QCOMPARE(host::reasonOf(end.reason).key, QStringLiteral("REASON_HOST_NOT_STARTED"));
}

void TestHostProcess::endsAHostThatHangs()
{
    qputenv("HOST_END", "hang write=0 exit=0");
    host::Console console;
    QElapsedTimer taken;
    taken.start();
    const host::HostEnd end = host::performHost(standIn(), {}, console, {300ms, 200ms});
    QVERIFY2(taken.elapsed() < 30'000, "it was waited for"); // it hangs for a minute
    QCOMPARE(end.code, host::ExitCode::notCompleted);
    QCOMPARE(end.reason, host::reasonWords("REASON_HOST_HUNG"));
}

void TestHostProcess::leavesRoomForTheHostsOwnLimit()
{
    constexpr auto own = 5min + 35s + 20s; // the run, the listener's start and the volumes' end
    QVERIFY(host::HostLimits().run >= own + 1min);
}

// A test that CTest kills leaves no report, and counts as failed.
void TestHostProcess::isEndedBeforeTheExampleGivesUp()
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/examples/ctest/CMakeLists.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression limit(QStringLiteral("TIMEOUT (\\d+)"));
    const std::chrono::seconds patience(limit.match(QString::fromUtf8(file.readAll())).captured(1).toInt());
    QVERIFY2(patience > host::longestStart({}), qPrintable(QString::number(patience.count())));
}

QTEST_GUILESS_MAIN(TestHostProcess)
#include "tst_host_process.moc"
