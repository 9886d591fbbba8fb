// SPDX-License-Identifier: Apache-2.0
#include "host/gui/test_session.h"

#include "autotests/host/gui/fake_module.h"
#include "contract/input_request.h"
#include "host/core/verdict.h"
#include "host/gui/dialog_prompter.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using std::chrono::milliseconds;

namespace {

constexpr int patienceMilliseconds = 10'000;
const QString language = QStringLiteral("en_US");

/// A session on a module of the test's own.
struct Session {
    FakeModule module;
    host::DialogPrompter prompter;
    QTemporaryDir folder;
    host::TestSession session{module.interface(), prompter, folder.path()};

    Session() { session.refresh(); }
};

// As a dialog of a test does it: turns the event loop until `isOver`, bounded.
bool turnUntil(const std::function<bool()> &isOver) { return QTest::qWaitFor(isOver, patienceMilliseconds); }

} // namespace

class TestTestSession : public QObject {
    Q_OBJECT

private slots:
    void offersTheTestsOfTheModule();
    void recordsARun();
    void runsOnTheChosenDevice();
    void refusesPositionsThatDoNotExist();
    void refusesASecondRun();
    void neverRefreshesDuringARun();
    void refreshesOnceAfterQuiet();
    void stopsARun();
    void stopClosesAnOpenQuestion();
    void raisesEventsInTheRun();
    void followsItsSchedule();
    void forgetsTheScheduleOfARunThatIsOver();
    void keepsAHistory();
    void letsTheCallerAddToTheRecord();
    void holdsTheVolumesAgainstOtherHosts();
};

void TestTestSession::offersTheTestsOfTheModule()
{
    const Session host;
    QCOMPARE(host.session.tests().size(), 2);
    QCOMPARE(host.session.tests()[0].letter, QStringLiteral("p"));
    QCOMPARE(host.session.tests()[1].nameKey, QStringLiteral("MICROPHONE_INTERACTIVE_TEST"));
    QCOMPARE(host.session.findTest(QStringLiteral("m")), 1);
    QCOMPARE(host.session.findTest(QStringLiteral("x")), -1);
}

void TestTestSession::recordsARun()
{
    Session host;
    host.module.playback = [](ostra::TestContext &context) {
        context.reporter()->report(0, "");
        context.messages()->addMessage("USER_DID_NOT_REPORT_SOUND", 2, 0);
        return ostra::result::failed;
    };
    const QSignalSpy started(&host.session, &host::TestSession::runStarted);
    const QSignalSpy ended(&host.session, &host::TestSession::runEnded);
    const auto record = host.session.run(0, 0, language);
    QVERIFY(record.has_value());
    QCOMPARE(record->testLetter, QStringLiteral("p"));
    QCOMPARE(record->testNameKey, QStringLiteral("AUDIO_PLAYBACK_TEST"));
    QCOMPARE(record->device.name, QStringLiteral("Speakers"));
    QCOMPARE(record->language, language);
    QCOMPARE(record->code, 1U);
    QCOMPARE(record->messages.size(), 1);
    QVERIFY(record->startedUtc.isValid() && record->endedUtc >= record->startedUtc);
    QCOMPARE(started.size(), 1);
    QCOMPARE(ended.size(), 1);
    QVERIFY(!host.session.isRunning());
}

void TestTestSession::runsOnTheChosenDevice()
{
    Session host;
    std::string name;
    host.module.microphone = [&name](ostra::TestContext &context) {
        name = context.component()->name();
        return ostra::result::passed;
    };
    QVERIFY(host.session.run(1, 1, language).has_value());
    QCOMPARE(name, std::string("Headphones"));
}

void TestTestSession::refusesPositionsThatDoNotExist()
{
    Session host;
    for (const auto &[test, device] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 2}})
        QVERIFY(!host.session.run(test, device, language).has_value());
    QVERIFY(host.session.history().isEmpty());
}

void TestTestSession::refusesASecondRun()
{
    Session host;
    bool hasRefused = false;
    host.module.playback = [&](ostra::TestContext &) {
        hasRefused = !host.session.run(1, 0, language).has_value();
        return ostra::result::passed;
    };
    QVERIFY(host.session.run(0, 0, language).has_value());
    QVERIFY(hasRefused);
    QCOMPARE(host.session.history().size(), 1);
}

void TestTestSession::neverRefreshesDuringARun()
{
    Session host;
    int countAtEnd = 0;
    host.module.playback = [&](ostra::TestContext &) {
        host.session.refreshWhenQuiet();
        QElapsedTimer time;
        time.start();
        turnUntil([&] { return time.hasExpired(2 * host::TestSession::quietTime.count()); });
        host.session.refresh();
        countAtEnd = host.module.refreshCount;
        return ostra::result::passed;
    };
    const int before = host.module.refreshCount;
    host.session.run(0, 0, language);
    QCOMPARE(countAtEnd, before);
    QCOMPARE(host.module.refreshCount, before + 1); // made up for at once
}

void TestTestSession::refreshesOnceAfterQuiet()
{
    Session host;
    host.module.names = {"Speakers", "Headphones", "USB"};
    QSignalSpy read(&host.session, &host::TestSession::devicesRead);
    int before = 0;
    QElapsedTimer time;
    // A busy machine may come back too late for the second notice.
    for (int attempt = 0; attempt == 0 || (attempt < 5 && !read.isEmpty()); ++attempt) {
        read.clear();
        before = host.module.refreshCount;
        host.session.refreshWhenQuiet();
        QTest::qWait(static_cast<int>(host::TestSession::quietTime.count() / 2));
    }
    time.start();
    host.session.refreshWhenQuiet(); // a second notice begins the quiet time anew
    QTRY_COMPARE_WITH_TIMEOUT(read.size(), 1, patienceMilliseconds);
    QVERIFY2(time.elapsed() >= host::TestSession::quietTime.count() * 95 / 100, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(host.session.deviceList().devices().size(), 3);
    QCOMPARE(host.module.refreshCount, before + 1);
}

void TestTestSession::stopsARun()
{
    Session host;
    host.module.playback = [&](ostra::TestContext &context) {
        QTimer::singleShot(0, &host.session, &host::TestSession::stop);
        turnUntil([&context] { return context.continueOnOutcome(); });
        return ostra::result::passed; // as a test does that was closed from outside
    };
    const QSignalSpy stopping(&host.session, &host::TestSession::stopRequested);
    const auto record = host.session.run(0, 0, language);
    QCOMPARE(stopping.size(), 1);
    QCOMPARE(record->code, 4U);
    QCOMPARE(record->moduleCode, 0U);
    QVERIFY(record->wasStopped);
    QCOMPARE(host::verdictOf(*record), host::Verdict::stopped);
    host.session.stop(); // nothing runs any more
    QCOMPARE(stopping.size(), 1);
}

void TestTestSession::stopClosesAnOpenQuestion()
{
    Session host;
    std::uint32_t answer = 77;
    host.module.microphone = [&](ostra::TestContext &context) {
        ostra::InputRequest question("T", "X", 5, 2, 0);
        QTimer::singleShot(0, &host.session, &host::TestSession::stop);
        context.reporter()->requestInput(&question);
        answer = question.answer;
        return ostra::result::passed;
    };
    QCOMPARE(host.session.run(1, 0, language)->code, 4U);
    QCOMPARE(answer, 0U);
}

void TestTestSession::raisesEventsInTheRun()
{
    Session host;
    std::uint32_t events = 0;
    host.module.playback = [&](ostra::TestContext &context) {
        for (const int bit : {0, 8, -1, 32})
            host.session.raiseEvent(bit);
        events = context.events()->pendingEvents();
        return ostra::result::notCompleted;
    };
    host.session.raiseEvent(5); // before the run began
    host.session.run(0, 0, language);
    QCOMPARE(events, 0x101U);
}

void TestTestSession::followsItsSchedule()
{
    Session host;
    std::uint32_t eventsAtStop = 0;
    host.module.playback = [&](ostra::TestContext &context) {
        turnUntil([&context] { return context.continueOnOutcome(); });
        eventsAtStop = context.events()->pendingEvents();
        return ostra::result::passed;
    };
    host.session.setSchedule({{{3, milliseconds(20)}}, milliseconds(200)});
    QElapsedTimer time;
    time.start();
    const auto record = host.session.run(0, 0, language);
    QVERIFY(time.elapsed() >= 190);
    QCOMPARE(eventsAtStop, 8U);
    QVERIFY(record->wasStopped);
}

void TestTestSession::forgetsTheScheduleOfARunThatIsOver()
{
    Session host;
    host.session.setSchedule({{}, milliseconds(50)});
    QVERIFY(!host.session.run(0, 0, language)->wasStopped); // over before its time
    host.session.setSchedule({});
    host.module.playback = [](ostra::TestContext &) {
        QTest::qWait(200);
        return ostra::result::passed;
    };
    QVERIFY(!host.session.run(0, 0, language)->wasStopped);
}

void TestTestSession::keepsAHistory()
{
    Session host;
    host.session.run(0, 0, language);
    host.session.run(1, 1, QStringLiteral("de_DE"));
    QCOMPARE(host.session.history().size(), 2);
    QCOMPARE(host.session.history()[1].language, QStringLiteral("de_DE"));
}

void TestTestSession::letsTheCallerAddToTheRecord()
{
    Session host;
    const QSignalSpy ended(&host.session, &host::TestSession::runEnded);
    host.session.run(0, 0, language, [](host::RunRecord &record) { record.listenedTo = QStringLiteral("ear"); });
    QCOMPARE(ended[0][0].value<host::RunRecord>().listenedTo, QStringLiteral("ear"));
    QCOMPARE(host.session.history()[0].listenedTo, QStringLiteral("ear"));
}

// A lock is held against other objects of the same process, too.
void TestTestSession::holdsTheVolumesAgainstOtherHosts()
{
    Session host;
    host::TestSession other(host.module.interface(), host.prompter, host.folder.path());
    QString reason;
    std::unique_ptr<host::VolumeLock> lock = host.session.holdVolumes(reason);
    QVERIFY(lock != nullptr && reason.isEmpty());
    QVERIFY(other.holdVolumes(reason) == nullptr);
    QVERIFY2(reason.startsWith(QStringLiteral("Another run is holding the volumes")), qPrintable(reason));
    lock.reset();
    QVERIFY(other.holdVolumes(reason) != nullptr);
}

QTEST_MAIN(TestTestSession)
#include "tst_test_session.moc"
