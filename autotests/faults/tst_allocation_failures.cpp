// SPDX-License-Identifier: Apache-2.0
// Every allocation of the module fails once. Each n-th by default; all of them where EVERY_ALLOCATION is set.
#include "audio/player_helper.h"
#include "audio/recorder_helper.h"
#include "audio/volume_guard.h"
#include "autotests/faults/driven_runs.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/refusing_allocator.h"
#include "autotests/tests/sound_truth.h"
#include "contract/exports.h"
#include "contract/message_keys.h"
#include "views/register_types.h"

#include <QTest>

#include <limits>
#include <new>

using namespace ostra;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

constexpr int unlimited = std::numeric_limits<int>::max();

// Refuses the allocation with the given number from now until the end of the scope.
class Refusal {
public:
    explicit Refusal(int number)
    {
        refusing_allocator::choice = &refusing_allocator::isAskedByThisProgram;
        refusing_allocator::allocationsUntilFailure = number;
    }
    ~Refusal() { end(); }
    Refusal(const Refusal &) = delete;
    Refusal &operator=(const Refusal &) = delete;

    /// How many were counted, or none when one was refused.
    static int left() { return refusing_allocator::allocationsUntilFailure; }
    static void end() { refusing_allocator::allocationsUntilFailure = -1; }
};

/// The numbers to try of `count` allocations: all, or about `samples` spread evenly, always with the first and the last.
int strideFor(int count, int samples)
{
    if (qEnvironmentVariableIsSet("EVERY_ALLOCATION"))
        return 1;
    return std::max(1, count / samples);
}

template <typename Action>
int allocationCount(Action action)
{
    const Refusal counting(unlimited);
    action();
    return unlimited - Refusal::left();
}

} // namespace

class TestAllocationFailures : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { ReleaseModuleInterfaceInstance(); }
    void anInstanceIsBuiltOrIsNull();
    void aRefreshThrowsBadAllocOnly();
    void noRunThrowsAndAllIsAsBefore_data();
    void noRunThrowsAndAllIsAsBefore();
    void volumesComeBackWhereMemoryIsShortForAMoment();
    void aWorkerAlwaysReportsOnce_data();
    void aWorkerAlwaysReportsOnce();

private:
    driven_runs::Place place_;
    driven_runs::Devices devices_;
};

void TestAllocationFailures::initTestCase()
{
    refusing_allocator::isAskedByThisProgram(); // what it loads stays
    std::vector<int> own;
    const int counted = allocationCount([&own] { own.reserve(8); });
    QCOMPARE(counted, 1); // the program's own are seen
    QCOMPARE(allocationCount([] { QObject().setObjectName(QStringLiteral("x")); }), 0);
}

void TestAllocationFailures::anInstanceIsBuiltOrIsNull()
{
    const int count = allocationCount([] { GetModuleInterfaceInstance(); });
    ReleaseModuleInterfaceInstance();
    QVERIFY2(count > 10, qPrintable(QString::number(count)));
    for (int failing = 0; failing < count; ++failing) {
        ModuleInterface *instance = nullptr;
        {
            const Refusal refusal(failing);
            instance = GetModuleInterfaceInstance();
        }
        QVERIFY2(instance == nullptr, qPrintable(QString::number(failing)));
        ReleaseModuleInterfaceInstance();
    }
    QVERIFY(GetModuleInterfaceInstance() != nullptr);
    qInfo("%d allocations", count);
}

void TestAllocationFailures::aRefreshThrowsBadAllocOnly()
{
    SystemComponentManager *manager = GetModuleInterfaceInstance()->componentManager();
    devices_.sound.outputs = {"Speakers", "Headphones with a name that needs memory of its own"};
    const int count = allocationCount([manager] { manager->refresh(); });
    QVERIFY2(count > 20, qPrintable(QString::number(count)));
    int thrown = 0;
    for (int failing = 0; failing < count; failing += strideFor(count, 100)) {
        bool isBadAlloc = false;
        try {
            const Refusal refusal(failing);
            manager->refresh();
        } catch (const std::bad_alloc &) {
            isBadAlloc = true;
        } catch (...) {
            QFAIL("something else than std::bad_alloc came out");
        }
        thrown += isBadAlloc ? 1 : 0;
        // What was listed before is whole.
        const std::uint64_t listed = manager->componentCount();
        QVERIFY(isBadAlloc ? listed < 2 : listed == 2);
        for (std::uint32_t index = 0; index < listed; ++index)
            QCOMPARE(manager->componentAt(index)->info().properties.size(), std::size_t(4));
        QCOMPARE(devices_.sound.openedCount.load(), devices_.sound.closedCount.load());
    }
    qInfo("%d allocations, %d refusals thrown", count, thrown);
    QVERIFY(thrown > 20);
    manager->refresh();
    QCOMPARE(manager->componentCount(), std::uint64_t(2));
    devices_.sound.outputs = {"Speakers"};
}

void TestAllocationFailures::noRunThrowsAndAllIsAsBefore_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("playback") << int(driven_runs::Kind::playback);
    QTest::newRow("microphone") << int(driven_runs::Kind::microphone);
}

void TestAllocationFailures::noRunThrowsAndAllIsAsBefore()
{
    QFETCH(const int, kind);
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    std::vector<std::string> calls;
    const auto run = [&](int failing) {
        ScriptedContext context(module->componentManager()->componentAt(0));
        driven_runs::Driver driver{driven_runs::Kind(kind)};
        driven_runs::Outcome outcome;
        {
            const Refusal refusal(failing);
            outcome = driver.run(*module, context);
        }
        calls = context.calls;
        return outcome;
    };
    QCOMPARE(run(unlimited).code.value_or(99), 0U); // what the system makes once is made
    QVERIFY(driven_runs::leftovers(process_facts::now().threads).empty());
    const std::size_t threads = process_facts::now().threads;
    sound_truth::turnDown();
    const std::string levels = sound_truth::levels();
    int count = 0;
    {
        ScriptedContext context(module->componentManager()->componentAt(0));
        driven_runs::Driver driver{driven_runs::Kind(kind)};
        count = allocationCount([&] { QCOMPARE(driver.run(*module, context).code.value_or(99), 0U); });
    }
    QVERIFY2(count > 50, qPrintable(QString::number(count)));
    std::map<std::uint32_t, int> codes;
    int runs = 0;
    for (int failing = 0; failing < count; failing += strideFor(count, 6), ++runs) {
        const driven_runs::Outcome outcome = run(failing);
        const QByteArray number = QByteArray::number(failing);
        QVERIFY2(outcome.code.has_value(), number.constData());
        QVERIFY2(!outcome.hasSlotThrown, number.constData());
        QVERIFY2(!outcome.isStuck, number.constData());
        // No memory is no verdict on the device. Without it the clips cannot be looked for either.
        const bool isPlayback = driven_runs::Kind(kind) == driven_runs::Kind::playback;
        QVERIFY2(*outcome.code == 0 || *outcome.code == 4 || (isPlayback && *outcome.code == 3), number.constData());
        // "Not supported" has one key for all of its reasons.
        const bool isUnsupported = *outcome.code == 3;
        for (const char *blame : {keys::userDidNotReportSound, keys::audioPlaybackTestWrongSequence,
                                  keys::deviceNotIdentifiedOrDisconnected, keys::possibleDefectiveComponents}) {
            for (const std::string &call : calls)
                QVERIFY2(isUnsupported || call.find(blame) == std::string::npos, (number.toStdString() + ' ' + call).c_str());
        }
        ++codes[*outcome.code];
        const std::string left = driven_runs::leftovers(threads, driven_runs::LooseWidgets::areDeleted);
        QVERIFY2(left.empty(), (left + number.toStdString()).c_str());
        QCOMPARE(devices_.sound.openedCount.load(), devices_.sound.closedCount.load());
        if (runs % 20 == 19)
            QCOMPARE(sound_truth::levels(), levels);
    }
    QCOMPARE(sound_truth::levels(), levels);
    QCOMPARE(run(unlimited).code.value_or(99), 0U); // and the next run is whole again
    qInfo("%d allocations, %d runs: %d passed, %d not supported, %d not completed", count, runs, codes[0], codes[3], codes[4]);
    QVERIFY(codes[4] > 0);
}

void TestAllocationFailures::volumesComeBackWhereMemoryIsShortForAMoment()
{
    sound_truth::turnDown();
    const std::string levels = sound_truth::levels();
    audio::VolumeGuard guard = audio::makeVolumeGuard(100);
    const int count = allocationCount([&guard] { guard.reset(); });
    QCOMPARE(count > 0, sound_truth::canTell()); // on Windows it asks for none, so nothing can be refused
    for (int failing = 0; failing < count; ++failing) {
        guard = audio::makeVolumeGuard(100);
        QVERIFY(!sound_truth::canTell() || sound_truth::levels() != levels);
        {
            const Refusal refusal(failing);
            guard.reset();
        }
        QCOMPARE(sound_truth::levels(), levels);
    }
    qInfo("%d allocations", count);
}

void TestAllocationFailures::aWorkerAlwaysReportsOnce_data()
{
    QTest::addColumn<bool>("records");
    QTest::newRow("recording") << true;
    QTest::newRow("playing") << false;
}

void TestAllocationFailures::aWorkerAlwaysReportsOnce()
{
    QFETCH(const bool, records);
    auto sample = std::make_shared<audio::AudioRecording>();
    sample->byteCount = 1000;
    sample->samples = std::make_unique<std::uint8_t[]>(sample->byteCount);
    sample->frequency = 8000;
    sample->channels = 1;
    const auto job = [&](int failing, bool &isStored) {
        auto slot = std::make_shared<audio::RecordingSlot>();
        const audio::StopFlag stopped = std::make_shared<std::atomic<bool>>(false);
        audio::RecorderHelper recorder(slot, stopped, QStringLiteral("A microphone whose name is long enough to need memory"),
                                       1);
        audio::PlayerHelper player(sample, stopped, QStringLiteral("Loudspeakers whose name is long enough to need memory"));
        std::vector<int> statuses;
        statuses.reserve(4);
        const auto report = [&statuses](int status) { statuses.push_back(status); };
        connect(&recorder, &audio::RecorderHelper::SendResultStatus, this, report);
        connect(&player, &audio::PlayerHelper::SendResultStatus, this, report);
        {
            const Refusal refusal(failing);
            records ? recorder.RecordAudio() : player.PlayAudio();
        }
        isStored = slot->recording != nullptr;
        return statuses;
    };
    bool isStored = false;
    int failing = 0;
    for (;; ++failing) {
        const std::vector<int> statuses = job(failing, isStored);
        QCOMPARE(statuses.size(), std::size_t(1));
        if (statuses.front() == 0)
            break; // it needs no more than these
        QCOMPARE(statuses.front(), 11);
        QVERIFY(!isStored);
        QCOMPARE(devices_.sound.openedCount.load(), devices_.sound.closedCount.load());
    }
    QCOMPARE(isStored, records);
    QVERIFY2(failing >= 1, qPrintable(QString::number(failing)));
    qInfo("%d allocations", failing);
}

QTEST_MAIN(TestAllocationFailures)
#include "tst_allocation_failures.moc"
