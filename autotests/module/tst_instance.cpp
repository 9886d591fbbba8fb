// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_context.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/refusing_allocator.h"
#include "contract/exports.h"
#include "module/audio_module_interface.h"
#include "module/audio_resource.h"
#include "module/device_hints.h"
#include "module/instance.h"

#include <QTest>

using namespace ostra;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
GetProductVersionFunction GetProductVersion;
}

namespace {

std::vector<std::string> destructions; // what the counting fakes below saw destroyed, in order

class CountingResource final : public Resource {
public:
    CountingResource() : Resource(EntityId(1, 2, 3)) {}
    ~CountingResource() override { destructions.emplace_back("resource"); }
    std::string diagnosticName(EntityId) const override { return {}; }
    std::string testName(EntityId) const override { return {}; }
    std::string diagnosticDescription(EntityId) const override { return {}; }
    std::string testDescription(EntityId) const override { return {}; }
};

class CountingManager final : public SystemComponentManager {
public:
    CountingManager() : SystemComponentManager(EntityId(1, 2, 3)) {}
    ~CountingManager() override { destructions.emplace_back("manager"); }
    bool hasComponents() override { return false; }
    SystemComponent *hintedComponentAt(std::uint32_t) override { return nullptr; }
    void refresh() override {}
};

class CountingTest final : public Test {
public:
    explicit CountingTest(std::string name) : Test(EntityId(1, 2, 3)), name_(std::move(name)) {}
    ~CountingTest() override { destructions.push_back(name_); }
    bool isSupported(SystemComponent *) override { return false; }
    std::uint32_t run(TestContext *) override { return 0; }
    bool firstFlag() override { return true; }

private:
    std::string name_;
};

// Counts how often its count is read, and grows by one test while it is being destroyed.
class GrowingDiagnostic final : public Diagnostic {
public:
    GrowingDiagnostic(std::string name, int &countReads)
        : Diagnostic(EntityId(1, 2, 3), {}), name_(std::move(name)), countReads_(countReads)
    {}
    ~GrowingDiagnostic() override { destructions.push_back(name_); }
    std::uint64_t testCount() const override { return ++countReads_ > 1 ? 2 : 1; }
    Test *testAt(std::uint32_t index) const override { return new CountingTest(name_ + " test " + std::to_string(index)); }

private:
    std::string name_;
    int &countReads_;
};

class CountingInterface final : public ModuleInterface {
public:
    CountingInterface(std::vector<Diagnostic *> diagnostics, Resource *resource, SystemComponentManager *manager,
                      int &countReads)
        : ModuleInterface(std::move(diagnostics), resource, manager, nullptr), countReads_(countReads)
    {}
    ~CountingInterface() override { destructions.emplace_back("interface"); }
    std::uint64_t diagnosticCount() const override { return ++countReads_, ModuleInterface::diagnosticCount(); }

private:
    int &countReads_;
};

} // namespace

class TestInstance : public QObject {
    Q_OBJECT

private slots:
    void init() { destructions.clear(); }
    void cleanup() { ReleaseModuleInterfaceInstance(); }

    void isBuiltOnceUntilItIsReleased();
    void releaseWithoutAnInstanceDoesNothing();
    void startsTheSoundLibraryAfterChoosingItsDriver();
    void overwritesADriverChosenBefore();
    void quitsTheSoundLibraryAtTheEnd();
    void failedAllocationGivesNullAndLeavesTheSoundLibraryAlone();
    void recoversAfterAFailedAllocation();
    void failureOfAnyEarlierAllocationGivesNull();
    void namesTheSuspectComponents();
    void carriesTheCatalogue();
    void answersNullBeyondItsLists();
    void givesTheParameterTableToTheResource();
    void needsAUser();
    void startsWithoutComponents();
    void tearsDownInOrderAndReadsEveryCountAnew();
    void toleratesMissingObjectsAtTearDown();
    void bothTestsAnswerTheirFlags_data();
    void bothTestsAnswerTheirFlags();
    void thePlaybackTestWantsACompleteContext();
    void theMicrophoneTestNeedsAMicrophone();
    void productVersionIsConstant();
};

void TestInstance::isBuiltOnceUntilItIsReleased()
{
    const FakeSdl fake;
    ModuleInterface *first = GetModuleInterfaceInstance();
    QVERIFY(first != nullptr);
    QCOMPARE(GetModuleInterfaceInstance(), first);
    QCOMPARE(fake.count("init"), 1);
    first->resource()->setParameterTable({{7, "marked"}});
    ReleaseModuleInterfaceInstance();

    ModuleInterface *second = GetModuleInterfaceInstance();
    QVERIFY(second != nullptr);
    QCOMPARE(fake.count("init"), 2); // a fresh one, sound library included
    QCOMPARE(second->resource()->parameterTable().count(7), std::size_t(0));
    QCOMPARE(second->diagnosticAt(0)->testCount(), std::uint64_t(2));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::releaseWithoutAnInstanceDoesNothing()
{
    const FakeSdl fake;
    ReleaseModuleInterfaceInstance();
    QVERIFY(fake.calls.empty());
    GetModuleInterfaceInstance();
    ReleaseModuleInterfaceInstance();
    ReleaseModuleInterfaceInstance();
    QCOMPARE(fake.count("quit"), 1);
}

void TestInstance::startsTheSoundLibraryAfterChoosingItsDriver()
{
    const FakeSdl fake;
    GetModuleInterfaceInstance();
    QCOMPARE(fake.calls.size(), std::size_t(2));
    QVERIFY(fake.calls.front().starts_with("setenv SDL_AUDIODRIVER="));
    QVERIFY(fake.calls.front().ends_with(" overwrite"));
    QCOMPARE(fake.calls.back(), std::string("init 16")); // audio only
    ReleaseModuleInterfaceInstance();
}

void TestInstance::overwritesADriverChosenBefore()
{
    const FakeSdl fake;
    SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
    GetModuleInterfaceInstance();
    // The sound library's own reader: on Windows the C library does not see what it set.
    const std::string expected = QSysInfo::productType() == QStringLiteral("windows") ? "wasapi" : "pulseaudio";
    QCOMPARE(std::string(SDL_getenv("SDL_AUDIODRIVER")), expected);
    ReleaseModuleInterfaceInstance();
}

void TestInstance::quitsTheSoundLibraryAtTheEnd()
{
    const FakeSdl fake;
    GetModuleInterfaceInstance();
    QCOMPARE(fake.count("quit"), 0);
    ReleaseModuleInterfaceInstance();
    QCOMPARE(fake.calls.back(), std::string("quit"));
}

void TestInstance::failedAllocationGivesNullAndLeavesTheSoundLibraryAlone()
{
    const FakeSdl fake;
    refusing_allocator::refusedByteCount = sizeof(AudioModuleInterface);
    ModuleInterface *instance = GetModuleInterfaceInstance();
    refusing_allocator::refusedByteCount = 0;
    QVERIFY(instance == nullptr);
    QVERIFY(fake.calls.empty());
}

void TestInstance::recoversAfterAFailedAllocation()
{
    const FakeSdl fake;
    refusing_allocator::refusedByteCount = sizeof(AudioModuleInterface);
    QVERIFY(GetModuleInterfaceInstance() == nullptr);
    refusing_allocator::refusedByteCount = 0;
    QVERIFY(GetModuleInterfaceInstance() != nullptr);
    ReleaseModuleInterfaceInstance();
}

void TestInstance::failureOfAnyEarlierAllocationGivesNull()
{
    const FakeSdl fake;
    int failures = 0;
    for (;; ++failures) {
        refusing_allocator::allocationsUntilFailure = failures;
        const bool isBuilt = GetModuleInterfaceInstance() != nullptr;
        const bool hasFailed = refusing_allocator::allocationsUntilFailure < 0;
        refusing_allocator::allocationsUntilFailure = -1;
        if (!hasFailed)
            break; // it needs no more allocations than these
        if (fake.count("setenv") != 0)
            break; // from here on the fake's own records fail
        QVERIFY2(!isBuilt, qPrintable(QString::number(failures)));
        QCOMPARE(fake.count("init"), 0);
    }
    QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::namesTheSuspectComponents()
{
    QCOMPARE(playbackHint(), std::string("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS"));
    QCOMPARE(microphoneHint(), std::string("POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE, CAMERA_MICROPHONE_MODULE, SPEAKERS"));
}

void TestInstance::carriesTheCatalogue()
{
    const FakeSdl fake;
    ModuleInterface *instance = GetModuleInterfaceInstance();
    QCOMPARE(instance->diagnosticCount(), std::uint64_t(1));
    Diagnostic *diagnostic = instance->diagnosticAt(0);
    QCOMPARE(diagnostic->id().key, EntityId(15, 1, 0).key);
    QCOMPARE(diagnostic->testCount(), std::uint64_t(2));
    QCOMPARE(diagnostic->testAt(0)->identity().key, EntityId(15, 1, 1).key);
    QCOMPARE(diagnostic->testAt(1)->identity().key, EntityId(15, 1, 2).key);
    QCOMPARE(diagnostic->findTest(EntityId(15, 1, 2)), diagnostic->testAt(1));
    QVERIFY(diagnostic->findTest(EntityId(15, 1, 3)) == nullptr);
    QCOMPARE(dynamic_cast<AudioResource &>(*instance->resource()).identity().key, EntityId(15, 0, 0).key);
    QCOMPARE(instance->componentManager()->id().key, EntityId(15, 0, 0).key);
    ReleaseModuleInterfaceInstance();
}

void TestInstance::answersNullBeyondItsLists()
{
    const FakeSdl fake;
    const ModuleInterface *instance = GetModuleInterfaceInstance();
    for (const std::uint32_t index : {1U, 2U, 0xFFFFFFFFU})
        QVERIFY(instance->diagnosticAt(index) == nullptr);
    QVERIFY(instance->diagnosticAt(0)->testAt(2) == nullptr);
    QVERIFY(instance->diagnosticAt(0)->testAt(0xFFFFFFFFU) == nullptr);
    QVERIFY(instance->additionalItemAt(0) == nullptr);
    QCOMPARE(instance->additionalItemCount(), std::uint64_t(0));
    QVERIFY(instance->auxiliary() == nullptr);
    ReleaseModuleInterfaceInstance();
}

void TestInstance::givesTheParameterTableToTheResource()
{
    const FakeSdl fake;
    const Resource *resource = GetModuleInterfaceInstance()->resource();
    QCOMPARE(resource->parameterTable(), (ParameterTable{{0, "0 - 2"}, {1, ""}, {2, ""}}));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::needsAUser()
{
    const FakeSdl fake;
    QVERIFY(GetModuleInterfaceInstance()->requiresInteraction());
    QVERIFY(!ModuleInterface({}, nullptr, nullptr, nullptr).requiresInteraction());
    ReleaseModuleInterfaceInstance();
}

void TestInstance::startsWithoutComponents()
{
    FakeSdl fake;
    fake.deviceNames = {"A"};
    QCOMPARE(GetModuleInterfaceInstance()->componentManager()->componentCount(), std::uint64_t(0));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::tearsDownInOrderAndReadsEveryCountAnew()
{
    int interfaceReads = 0;
    int firstReads = 0;
    int secondReads = 0;
    auto *first = new GrowingDiagnostic("first", firstReads);
    auto *second = new GrowingDiagnostic("second", secondReads);
    destroyInstance(new CountingInterface({first, second}, new CountingResource, new CountingManager, interfaceReads));
    QCOMPARE(destructions, (std::vector<std::string>{"resource", "manager", "first test 0", "first test 1", "first",
                                                     "second test 0", "second test 1", "second", "interface"}));
    QCOMPARE(interfaceReads, 3);
    QCOMPARE(firstReads, 3);
    QCOMPARE(secondReads, 3);
}

void TestInstance::toleratesMissingObjectsAtTearDown()
{
    int interfaceReads = 0;
    auto *diagnostic = new Diagnostic(EntityId(15, 1, 0), {nullptr, new CountingTest("test")});
    destroyInstance(new CountingInterface({nullptr, diagnostic}, nullptr, nullptr, interfaceReads));
    QCOMPARE(destructions, (std::vector<std::string>{"test", "interface"}));
}

void TestInstance::bothTestsAnswerTheirFlags_data()
{
    QTest::addColumn<unsigned>("index");
    QTest::newRow("playback") << 0U;
    QTest::newRow("microphone") << 1U;
}

void TestInstance::bothTestsAnswerTheirFlags()
{
    QFETCH(unsigned, index);
    const FakeSdl fake;
    Test *test = GetModuleInterfaceInstance()->diagnosticAt(0)->testAt(index);
    QVERIFY(!test->isSupported(nullptr));
    QVERIFY(test->firstFlag());
    QVERIFY(!test->secondFlag());
    QVERIFY(test->thirdFlag());
    QVERIFY(test->fourthFlag());
    QVERIFY(test->firstList().empty());
    QVERIFY(test->secondList().empty());
    QVERIFY(test->configure({{1, "x"}}, 2));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::thePlaybackTestWantsACompleteContext()
{
    const FakeSdl fake;
    Test *test = GetModuleInterfaceInstance()->diagnosticAt(0)->testAt(0);
    FakeContext withoutComponent;
    QCOMPARE(test->run(&withoutComponent), 6U);
    QCOMPARE(withoutComponent.calls, std::vector<std::string>{});
    FakeContext bare;
    bare.hasServices = false;
    QCOMPARE(test->run(&bare), 6U);
    QCOMPARE(test->run(nullptr), 6U);
    ReleaseModuleInterfaceInstance();
}

void TestInstance::theMicrophoneTestNeedsAMicrophone()
{
    FakeSdl fake;
    Test *test = GetModuleInterfaceInstance()->diagnosticAt(0)->testAt(1);
    FakeContext context;
    QCOMPARE(test->run(&context), 4U);
    QCOMPARE(context.calls, (std::vector<std::string>{"events", "report 100 NO_INPUT_DEVICE", "message NO_INPUT_DEVICE 0 0"}));
    ReleaseModuleInterfaceInstance();
}

void TestInstance::productVersionIsConstant()
{
    const ProductVersion *version = GetProductVersion();
    QCOMPARE(GetProductVersion(), version);
    QCOMPARE(version->major(), 4U);
    QCOMPARE(version->minor(), 42U);
    QCOMPARE(version->build(), 0U);
    QCOMPARE(version->revision(), 92U);
}

QTEST_GUILESS_MAIN(TestInstance)
#include "tst_instance.moc"
