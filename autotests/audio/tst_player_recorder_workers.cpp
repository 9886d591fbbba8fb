// SPDX-License-Identifier: Apache-2.0
#include "audio/abandoned_workers.h"
#include "audio/player_helper.h"
#include "audio/recorder_helper.h"
#include "audio/worker_status.h"
#include "autotests/audio/object_tables.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/refusing_allocator.h"

#include <QObject>
#include <QStringList>
#include <QTest>
#include <QThread>

#include <functional>
#include <stdexcept>

using namespace ostra::audio;

namespace {

constexpr int bound = 5000; // ms; far beyond every designed wait

const QString microphone = QStringLiteral("Mikrofon \u00DC");
const QString speakers = QStringLiteral("Kopfh\u00F6rer");

std::shared_ptr<AudioRecording> makeRecording(std::uint16_t seconds = 1)
{
    auto recording = std::make_shared<AudioRecording>();
    recording->byteCount = 16000;
    recording->samples = std::make_unique<std::uint8_t[]>(recording->byteCount);
    recording->seconds = seconds;
    recording->frequency = 8000;
    recording->format = AUDIO_S16LSB;
    recording->channels = 1;
    recording->framesPerCallback = 512;
    return recording;
}

StopFlag clearedFlag() { return std::make_shared<std::atomic<bool>>(false); }

// What the worker reports, without the queue between threads. `failing` is the allocation of the job that fails, or negative.
template <typename Worker>
std::vector<int> statusesOf(Worker &worker, void (Worker::*job)(), int failing)
{
    std::vector<int> statuses;
    statuses.reserve(4); // so that the receiver allocates nothing
    const auto connection =
        QObject::connect(&worker, &Worker::SendResultStatus, [&statuses](int status) { statuses.push_back(status); });
    refusing_allocator::allocationsUntilFailure = failing;
    (worker.*job)();
    refusing_allocator::allocationsUntilFailure = -1;
    QObject::disconnect(connection);
    return statuses;
}

std::vector<int> statusesOf(RecorderHelper &worker, int failing = -1)
{
    return statusesOf(worker, &RecorderHelper::RecordAudio, failing);
}

std::vector<int> statusesOf(PlayerHelper &worker, int failing = -1)
{
    return statusesOf(worker, &PlayerHelper::PlayAudio, failing);
}

// The wiring of the microphone test's pages.
template <typename Worker>
void start(QThread &thread, Worker *worker, void (Worker::*job)(), QObject &page, std::function<void(int)> report)
{
    worker->moveToThread(&thread);
    QObject::connect(&thread, &QThread::started, worker, job);
    QObject::connect(worker, &Worker::SendResultStatus, &page, std::move(report));
    QObject::connect(worker, &Worker::SendResultStatus, &thread, &QThread::quit);
    QObject::connect(worker, &Worker::SendResultStatus, worker, &QObject::deleteLater);
    thread.start();
}

} // namespace

class TestPlayerRecorderWorkers : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void announceTheirOperationsInOrder();
    void keepTheTablesOrder();
    void recorderStoresTheRecordingBeforeItReports();
    void recorderReplacesThePreviousRecording();
    void recorderFailsWithoutDevice();
    void recorderReportsAVanishedDevice();
    void recorderReportsMissingMemoryOnce();
    void playerPlaysTheRecording();
    void playerFailsWithoutDevice();
    void playerReportsAVanishedDevice();
    void playerReportsATooShortRecording();
    void playerReportsAMissingRecording();
    void playerReportsMissingMemoryOnce();
    void reportOnceForEveryJob();
    void stopBeforeTheStartEndsWithSuccess();
    void stopFromAnotherThreadEndsTheJob();
    void everyJobHasAFlagOfItsOwn();
    void touchNothingAfterTheReport();
    void letNoExceptionOfAReceiverOut();
    void recorderOutlivesTheSlotsOtherOwner();
    void openAndCloseOnTheirOwnThread();
    void giveBackWhatTheLibraryKeepsForTheirThread();
    void aDeadPageIsNotReported();
    void abandonedWorkersKeepTheLibraryRunning();
    void endedWorkersAreNoLongerCounted();
    void missingMemoryStillCountsAnAbandonedWorker();

private:
    std::unique_ptr<FakeSdl> fake_;
};

void TestPlayerRecorderWorkers::init()
{
    fake_ = std::make_unique<FakeSdl>();
    fake_->tracksStatus = true;
}

void TestPlayerRecorderWorkers::cleanup() { fake_.reset(); }

void TestPlayerRecorderWorkers::announceTheirOperationsInOrder()
{
    QCOMPARE(operationsOf(RecorderHelper::staticMetaObject),
             (QStringList{QStringLiteral("signal SendResultStatus(int)"), QStringLiteral("slot RecordAudio()"),
                          QStringLiteral("slot StopRecordAudio()")}));
    QCOMPARE(operationsOf(PlayerHelper::staticMetaObject),
             (QStringList{QStringLiteral("signal SendResultStatus(int)"), QStringLiteral("slot PlayAudio()"),
                          QStringLiteral("slot StopPlayAudio()")}));
}

void TestPlayerRecorderWorkers::keepTheTablesOrder()
{
    QCOMPARE(entryOf(&RecorderHelper::metaObject), std::size_t{0});
    QCOMPARE(entryOf(&RecorderHelper::qt_metacast), std::size_t{1});
    QCOMPARE(entryOf(&RecorderHelper::qt_metacall), std::size_t{2});
    QCOMPARE(entryOf(&PlayerHelper::metaObject), std::size_t{0});
    QCOMPARE(entryOf(&PlayerHelper::qt_metacast), std::size_t{1});
    QCOMPARE(entryOf(&PlayerHelper::qt_metacall), std::size_t{2});
    QCOMPARE(entryOf(&RecorderHelper::event), std::size_t{5}); // after the destructor's two entries
    QCOMPARE(entryOf(&PlayerHelper::event), std::size_t{5});
}

void TestPlayerRecorderWorkers::recorderStoresTheRecordingBeforeItReports()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecorderHelper worker(slot, clearedFlag(), microphone, 5);
    std::shared_ptr<AudioRecording> atReport;
    connect(&worker, &RecorderHelper::SendResultStatus, this, [&] { atReport = slot->recording; });
    QCOMPARE(statusesOf(worker), std::vector<int>{worker_status::finished});
    QVERIFY(atReport);
    QCOMPARE(atReport->byteCount, 2116800U);
    QCOMPARE(atReport->seconds, quint16{5});
    QCOMPARE(fake_->calls.front(), "open " + microphone.toStdString() + " 1 obtained");
}

void TestPlayerRecorderWorkers::recorderReplacesThePreviousRecording()
{
    const auto slot = std::make_shared<RecordingSlot>();
    slot->recording = makeRecording();
    const std::weak_ptr<AudioRecording> previous = slot->recording;
    RecorderHelper worker(slot, clearedFlag(), microphone, 0);
    QCOMPARE(statusesOf(worker), std::vector<int>{0});
    QVERIFY(previous.expired());
    QCOMPARE(slot->recording.use_count(), 1L);
}

void TestPlayerRecorderWorkers::recorderFailsWithoutDevice()
{
    fake_->nextDeviceId = 0;
    const auto slot = std::make_shared<RecordingSlot>();
    const std::shared_ptr<AudioRecording> previous = slot->recording = makeRecording();
    RecorderHelper worker(slot, makeStopFlag(), microphone, 5);
    QCOMPARE(statusesOf(worker), std::vector<int>{38});
    QCOMPARE(slot->recording, previous);
}

void TestPlayerRecorderWorkers::recorderReportsAVanishedDevice()
{
    fake_->onCall = [this](const std::string &call) {
        if (call == "delay 500") {
            fake_->tracksStatus = false;
            fake_->status = SDL_AUDIO_STOPPED;
        }
    };
    const auto slot = std::make_shared<RecordingSlot>();
    RecorderHelper worker(slot, makeStopFlag(), microphone, 5);
    QCOMPARE(statusesOf(worker), std::vector<int>{38});
    QVERIFY(!slot->recording);
}

namespace {

// The fake keeps a list of its calls; here nothing but the code under test may allocate.
void makeFakeFrugal()
{
    SdlApi &api = sdl();
    api.openDevice = [](const char *, int, const SDL_AudioSpec *desired, SDL_AudioSpec *obtained, int) {
        *obtained = *desired;
        return SDL_AudioDeviceID{2};
    };
    api.pauseDevice = [](SDL_AudioDeviceID, int) {};
    api.deviceStatus = [](SDL_AudioDeviceID) { return SDL_AUDIO_PLAYING; };
    api.closeDevice = [](SDL_AudioDeviceID) {};
}

// Lets the job's first allocation fail, then the second and so on, until it succeeds. How many of them failed.
int failEveryAllocation(const std::function<std::vector<int>(int)> &job)
{
    for (int failing = 0;; ++failing) {
        const std::vector<int> statuses = job(failing);
        if (statuses == std::vector<int>{0})
            return failing;
        if (statuses != std::vector<int>{11})
            return -1;
    }
}

} // namespace

void TestPlayerRecorderWorkers::recorderReportsMissingMemoryOnce()
{
    makeFakeFrugal();
    const auto slot = std::make_shared<RecordingSlot>();
    RecorderHelper worker(slot, clearedFlag(), QStringLiteral("A microphone with a long name"), 0);
    bool storedTooEarly = false;
    const int failures = failEveryAllocation([&](int failing) {
        const std::vector<int> statuses = statusesOf(worker, failing);
        storedTooEarly = storedTooEarly || (statuses != std::vector<int>{0} && slot->recording);
        return statuses;
    });
    QVERIFY2(failures >= 4, qPrintable(QString::number(failures))); // two buffers, the record, its counter
    QVERIFY(!storedTooEarly);
    QVERIFY(slot->recording);
}

void TestPlayerRecorderWorkers::playerReportsMissingMemoryOnce()
{
    makeFakeFrugal();
    PlayerHelper worker(makeRecording(), clearedFlag(), QStringLiteral("A loudspeaker with a long name"));
    QVERIFY(failEveryAllocation([&worker](int failing) { return statusesOf(worker, failing); }) >= 1);
}

void TestPlayerRecorderWorkers::playerPlaysTheRecording()
{
    const auto recording = makeRecording();
    recording->samples[0] = 7;
    const StopFlag flag = makeStopFlag();
    std::vector<std::uint8_t> heard(4, 0xAA);
    fake_->onCall = [&](const std::string &call) {
        if (call == "delay 500") {
            fake_->callBack(heard);
            flag->store(false);
        }
    };
    PlayerHelper worker(recording, flag, speakers);
    QCOMPARE(statusesOf(worker), std::vector<int>{0});
    QCOMPARE(heard, (std::vector<std::uint8_t>{7, 0, 0, 0}));
    QCOMPARE(fake_->calls.front(), "open " + speakers.toStdString() + " 0 obtained");
}

void TestPlayerRecorderWorkers::playerFailsWithoutDevice()
{
    fake_->nextDeviceId = 0;
    PlayerHelper worker(makeRecording(), makeStopFlag(), speakers);
    QCOMPARE(statusesOf(worker), std::vector<int>{38});
}

void TestPlayerRecorderWorkers::playerReportsAVanishedDevice()
{
    fake_->onCall = [this](const std::string &call) {
        if (call == "delay 500") {
            fake_->tracksStatus = false;
            fake_->status = SDL_AUDIO_STOPPED;
        }
    };
    PlayerHelper worker(makeRecording(), makeStopFlag(), speakers);
    QCOMPARE(statusesOf(worker), std::vector<int>{38});
}

void TestPlayerRecorderWorkers::playerReportsATooShortRecording()
{
    PlayerHelper worker(makeRecording(2), makeStopFlag(), speakers);
    QCOMPARE(statusesOf(worker), std::vector<int>{11});
}

void TestPlayerRecorderWorkers::playerReportsAMissingRecording()
{
    PlayerHelper worker(nullptr, makeStopFlag(), speakers);
    QCOMPARE(statusesOf(worker), std::vector<int>{11});
    QVERIFY(fake_->calls.empty());
}

void TestPlayerRecorderWorkers::reportOnceForEveryJob()
{
    PlayerHelper player(makeRecording(), clearedFlag(), speakers);
    QCOMPARE(statusesOf(player), std::vector<int>{0});
    QCOMPARE(statusesOf(player), std::vector<int>{0});
    RecorderHelper recorder(std::make_shared<RecordingSlot>(), clearedFlag(), microphone, 0);
    QCOMPARE(statusesOf(recorder), std::vector<int>{0});
    QCOMPARE(statusesOf(recorder), std::vector<int>{0});
}

void TestPlayerRecorderWorkers::stopBeforeTheStartEndsWithSuccess()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecorderHelper recorder(slot, makeStopFlag(), microphone, 5);
    recorder.StopRecordAudio();
    QCOMPARE(statusesOf(recorder), std::vector<int>{0});
    QVERIFY(slot->recording);
    PlayerHelper player(slot->recording, makeStopFlag(), speakers);
    player.StopPlayAudio();
    QCOMPARE(statusesOf(player), std::vector<int>{0});
    QCOMPARE(fake_->count("delay"), 0);
    QCOMPARE(fake_->count("pause 2 0"), 2); // opened and started all the same
}

void TestPlayerRecorderWorkers::stopFromAnotherThreadEndsTheJob()
{
    sdl().delay = [](Uint32 milliseconds) { SDL_Delay(milliseconds / 50); };
    QObject page;
    QThread thread;
    std::vector<int> statuses;
    auto *worker = new RecorderHelper(std::make_shared<RecordingSlot>(), makeStopFlag(), microphone, 5);
    std::atomic<bool> isRunning = false;
    fake_->onCall = [&isRunning](const std::string &call) {
        if (call == "pause 2 0")
            isRunning = true;
    };
    start(thread, worker, &RecorderHelper::RecordAudio, page, [&statuses](int status) { statuses.push_back(status); });
    QTRY_VERIFY_WITH_TIMEOUT(isRunning, bound);
    worker->StopRecordAudio(); // a queued call would never be heard
    QTRY_COMPARE_WITH_TIMEOUT(statuses, std::vector<int>{0}, bound);
    QVERIFY(thread.wait(bound));
    QCOMPARE(fake_->threadCleanUps.load(), 1);
}

void TestPlayerRecorderWorkers::everyJobHasAFlagOfItsOwn()
{
    const StopFlag first = makeStopFlag();
    first->store(false);
    const StopFlag second = makeStopFlag();
    QVERIFY(*second);
    QVERIFY(!*first);
}

void TestPlayerRecorderWorkers::touchNothingAfterTheReport()
{
    auto *recorder = new RecorderHelper(std::make_shared<RecordingSlot>(), clearedFlag(), microphone, 0);
    connect(recorder, &RecorderHelper::SendResultStatus, this, [recorder] { delete recorder; });
    recorder->RecordAudio();
    auto *player = new PlayerHelper(makeRecording(), clearedFlag(), speakers);
    connect(player, &PlayerHelper::SendResultStatus, this, [player] { delete player; });
    player->PlayAudio();
    QCOMPARE(fake_->count("close"), 2);
}

void TestPlayerRecorderWorkers::letNoExceptionOfAReceiverOut()
{
    RecorderHelper recorder(std::make_shared<RecordingSlot>(), clearedFlag(), microphone, 0);
    connect(&recorder, &RecorderHelper::SendResultStatus, this, [](int) { throw std::runtime_error("page"); });
    recorder.RecordAudio();
    PlayerHelper player(makeRecording(), clearedFlag(), speakers);
    connect(&player, &PlayerHelper::SendResultStatus, this, [](int) { throw std::runtime_error("page"); });
    player.PlayAudio();
    QCOMPARE(fake_->count("pause 2 1"), 2);
}

void TestPlayerRecorderWorkers::recorderOutlivesTheSlotsOtherOwner()
{
    auto slot = std::make_shared<RecordingSlot>();
    const std::weak_ptr<RecordingSlot> watched = slot;
    const StopFlag flag = makeStopFlag();
    fake_->onCall = [&](const std::string &call) {
        if (call == "delay 500") {
            slot.reset(); // the dialog dies during the recording
            flag->store(false);
        }
    };
    {
        RecorderHelper worker(slot, flag, microphone, 0);
        QCOMPARE(statusesOf(worker), std::vector<int>{0});
        QVERIFY(watched.lock()->recording);
    }
    QVERIFY(watched.expired());
}

void TestPlayerRecorderWorkers::openAndCloseOnTheirOwnThread()
{
    std::vector<std::pair<std::string, Qt::HANDLE>> uses;
    fake_->onCall = [&uses](const std::string &call) { uses.emplace_back(call, QThread::currentThreadId()); };
    QObject page;
    QThread thread;
    Qt::HANDLE workerThread = nullptr;
    connect(&thread, &QThread::started, [&workerThread] { workerThread = QThread::currentThreadId(); });
    int status = -1;
    start(thread, new PlayerHelper(makeRecording(), clearedFlag(), speakers), &PlayerHelper::PlayAudio, page,
          [&status](int reported) { status = reported; });
    QTRY_COMPARE_WITH_TIMEOUT(status, 0, bound);
    QTRY_VERIFY_WITH_TIMEOUT(thread.isFinished(), bound);
    QCOMPARE(fake_->threadCleanUps.load(), 1);
    QCOMPARE(uses.front().first, "open " + speakers.toStdString() + " 0 obtained");
    QCOMPARE(uses.back().first, std::string("close 2"));
    for (const auto &[call, user] : uses)
        QVERIFY2(user == workerThread, call.c_str());
}

void TestPlayerRecorderWorkers::giveBackWhatTheLibraryKeepsForTheirThread()
{
    static int cleanUps;
    static int closedBefore;
    static FakeSdl *fake;
    cleanUps = 0;
    fake = fake_.get();
    sdl().cleanUpThread = [] {
        ++cleanUps;
        closedBefore = fake->count("close");
    };
    {
        PlayerHelper unused(makeRecording(), clearedFlag(), speakers);
        RecorderHelper worker(std::make_shared<RecordingSlot>(), clearedFlag(), microphone, 0);
        worker.RecordAudio();
        worker.RecordAudio();
    }
    QCOMPARE(cleanUps, 1);
    QCOMPARE(closedBefore, 1); // closing may leave an error message with the thread
}

void TestPlayerRecorderWorkers::aDeadPageIsNotReported()
{
    sdl().delay = [](Uint32 milliseconds) { SDL_Delay(milliseconds / 50); };
    const StopFlag flag = makeStopFlag();
    QThread thread;
    bool wasReported = false;
    {
        QObject page;
        start(thread, new PlayerHelper(makeRecording(), flag, speakers), &PlayerHelper::PlayAudio, page,
              [&wasReported](int) { wasReported = true; });
    }
    flag->exchange(false);
    QTRY_VERIFY_WITH_TIMEOUT(thread.isFinished(), bound);
    QCOMPARE(fake_->threadCleanUps.load(), 1);
    QVERIFY(!wasReported);
    QCOMPARE(fake_->calls.back(), std::string("close 2"));
}

void TestPlayerRecorderWorkers::abandonedWorkersKeepTheLibraryRunning()
{
    QCOMPARE(abandonedWorkerCount(), 0);
    quitSoundLibrary();
    QCOMPARE(fake_->count("quit"), 1);

    StopFlag flag = makeStopFlag();
    const RecorderHelper worker(std::make_shared<RecordingSlot>(), flag, microphone, 5);
    abandonWorker(flag);
    flag.reset();
    QCOMPARE(abandonedWorkerCount(), 1);
    QTest::ignoreMessage(QtWarningMsg, "SDL_Quit skipped: 1 worker(s) still use the sound library");
    quitSoundLibrary();
    QCOMPARE(fake_->count("quit"), 1);
}

void TestPlayerRecorderWorkers::endedWorkersAreNoLongerCounted()
{
    auto recorder = std::make_unique<RecorderHelper>(std::make_shared<RecordingSlot>(), makeStopFlag(), microphone, 5);
    StopFlag flag = makeStopFlag();
    auto player = std::make_unique<PlayerHelper>(makeRecording(), flag, speakers);
    abandonWorker(flag);
    flag.reset();
    QCOMPARE(abandonedWorkerCount(), 1);
    player.reset();
    QCOMPARE(abandonedWorkerCount(), 0);
    quitSoundLibrary();
    QCOMPARE(fake_->count("quit"), 1);
}

// The last one: this worker counts until the process ends.
void TestPlayerRecorderWorkers::missingMemoryStillCountsAnAbandonedWorker()
{
    std::vector<StopFlag> flags;
    for (bool wasRefused = false; !wasRefused;) { // until the list has to grow
        flags.push_back(makeStopFlag());
        refusing_allocator::allocationsUntilFailure = 0;
        abandonWorker(flags.back());
        wasRefused = refusing_allocator::allocationsUntilFailure < 0;
        refusing_allocator::allocationsUntilFailure = -1;
    }
    flags.clear();
    QCOMPARE(abandonedWorkerCount(), 1);
}

QTEST_GUILESS_MAIN(TestPlayerRecorderWorkers)
#include "tst_player_recorder_workers.moc"
