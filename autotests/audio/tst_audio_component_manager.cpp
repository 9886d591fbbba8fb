// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component.h"
#include "audio/audio_component_manager.h"
#include "autotests/support/fake_sal.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/wave_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra;
using namespace ostra::audio;

namespace {

std::vector<std::string> names(const SystemComponentManager &manager)
{
    std::vector<std::string> result;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        result.push_back(manager.componentAt(index)->name());
    return result;
}

PropertyList properties(const SystemComponentManager &manager, std::uint32_t index)
{
    return manager.componentAt(index)->info().properties;
}

// A component of another family; counts how often it is destroyed.
class ForeignComponent final : public SystemComponent {
public:
    explicit ForeignComponent(int &destroyed) : SystemComponent("foreign"), destroyed_(destroyed) {}
    ~ForeignComponent() override { ++destroyed_; }
    void *reserved4() override { return nullptr; }
    bool reserved5() override { return false; }
    bool reserved6() override { return false; }
    void reserved7() override {}
    bool reserved8() override { return false; }
    void reserved9() override {}

private:
    int &destroyed_;
};

} // namespace

class TestAudioComponentManager : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsEmpty();
    void tellsItsIdentity();
    void asksTheSoundLibraryForItsDevices();
    void makesOneComponentForTwoDevicesOfOneName();
    void skipsDevicesWithoutAName();
    void survivesACountBelowZero();
    void answersNullBeyondTheList();
    void emptiesTheListWhenTheDevicesAreGone();
    void makesNewComponentsAtEveryRefresh();
    void describesADeviceByFourProperties();
    void addsTheDriverVersionLast();
    void asksTwiceForAVersionThatExistsAndOnceForOneThatDoesNot();
    void givesAnEmptyDescriptionsVersionToDevicesThatFitNoEarlierRow();
    void reportsTheFormatOfADeviceThatCannotBeOpened();
    void reportsTheClipsFormat();
    void formatsNumbersAsTheHostDoes();
    void formatsNumbersItselfWithoutTheHostsFormatter();
    void copesWithoutABackEndName();
    void closesEveryDeviceBeforeItOpensTheNext();
    void keepsWhatIsListedWhenMemoryRunsOut();
    void logsARefreshThatAServiceEnds();
    void componentAnswersTheSharedOperations();
    void dropsForeignComponentsWithoutDestroyingThem();

private:
    QString folder() const { return QCoreApplication::applicationDirPath(); }

    const EntityId id_{15, 0, 0};
    QTemporaryDir state_;
};

void TestAudioComponentManager::init()
{
    fake_sal::state() = {};
    wave_files::write(state_.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    QVERIFY(QDir::setCurrent(state_.path()));
}

void TestAudioComponentManager::cleanup() { QDir(folder() + QStringLiteral("/audio_files")).removeRecursively(); }

void TestAudioComponentManager::startsEmpty()
{
    FakeSdl fake;
    fake.deviceNames = {"A"};
    const AudioComponentManager manager(id_);
    QCOMPARE(manager.componentCount(), std::uint64_t(0));
    QVERIFY(fake.calls.empty());
}

void TestAudioComponentManager::tellsItsIdentity()
{
    const AudioComponentManager manager(id_);
    QCOMPARE(manager.id().key, std::uint64_t(15) << 48);
}

void TestAudioComponentManager::asksTheSoundLibraryForItsDevices()
{
    FakeSdl fake;
    AudioComponentManager manager(id_);
    QVERIFY(!manager.hasComponents());
    fake.deviceNames = {"A"};
    QVERIFY(manager.hasComponents()); // although nothing is listed yet
    manager.refresh();
    QCOMPARE(names(manager), (std::vector<std::string>{"A"}));
    fake.deviceNames.clear();
    QVERIFY(!manager.hasComponents()); // although the old list is still held
    QCOMPARE(manager.componentCount(), std::uint64_t(1));
    QCOMPARE(fake.count("count 1"), 0);
}

void TestAudioComponentManager::makesOneComponentForTwoDevicesOfOneName()
{
    FakeSdl fake;
    fake.deviceNames = {"A", "B", "A", "A ", "a"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(names(manager), (std::vector<std::string>{"A", "B", "A ", "a"}));
    QCOMPARE(fake.count("open A 0"), 1);
}

void TestAudioComponentManager::skipsDevicesWithoutAName()
{
    FakeSdl fake;
    fake.deviceNames = {"A", std::nullopt, "", "B"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(names(manager), (std::vector<std::string>{"A", "", "B"}));
}

void TestAudioComponentManager::survivesACountBelowZero()
{
    FakeSdl fake;
    fake.deviceCount = -1; // the sound library never started
    AudioComponentManager manager(id_);
    QVERIFY(!manager.hasComponents());
    manager.refresh();
    QCOMPARE(manager.componentCount(), std::uint64_t(0));
    QCOMPARE(fake.count("name"), 0);
}

void TestAudioComponentManager::answersNullBeyondTheList()
{
    FakeSdl fake;
    fake.deviceNames = {"A"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QVERIFY(manager.componentAt(0) != nullptr);
    QCOMPARE(manager.hintedComponentAt(0), manager.componentAt(0));
    for (const std::uint32_t index : {1U, 2U, 0xFFFFFFFFU}) {
        QVERIFY(manager.componentAt(index) == nullptr);
        QVERIFY(manager.hintedComponentAt(index) == nullptr);
    }
}

void TestAudioComponentManager::emptiesTheListWhenTheDevicesAreGone()
{
    FakeSdl fake;
    fake.deviceNames = {"A"};
    AudioComponentManager manager(id_);
    manager.refresh();
    fake.deviceNames.clear();
    manager.refresh();
    QCOMPARE(manager.componentCount(), std::uint64_t(0));
}

void TestAudioComponentManager::makesNewComponentsAtEveryRefresh()
{
    FakeSdl fake;
    fake.deviceNames = {"A"};
    AudioComponentManager manager(id_);
    manager.refresh();
    dynamic_cast<AudioComponent &>(*manager.componentAt(0)).setInstructionsState(1);
    manager.refresh();
    QCOMPARE(dynamic_cast<AudioComponent &>(*manager.componentAt(0)).instructionsState(), 0);
}

void TestAudioComponentManager::describesADeviceByFourProperties()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(
        properties(manager, 0),
        (PropertyList{{"UDI", "Headphones"}, {"NUMBER_OF_CHANNELS", "2"}, {"SAMPLE_RATE", "22050"}, {"DRIVER_NAME", "fake"}}));
    QCOMPARE(manager.componentAt(0)->info().id, std::string("Headphones"));
    QVERIFY(manager.componentAt(0)->info().secondText.empty());
    QVERIFY(manager.componentAt(0)->info().attributes.empty());
}

void TestAudioComponentManager::addsTheDriverVersionLast()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    fake_sal::state().rows = {{"Headphones", "6.1.7", "x"}};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).size(), std::size_t(5));
    QCOMPARE(properties(manager, 0).back(), (std::pair<std::string, std::string>{"DRIVER_VERSION", "6.1.7"}));
}

void TestAudioComponentManager::asksTwiceForAVersionThatExistsAndOnceForOneThatDoesNot()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones", "Other"};
    fake_sal::state().rows = {{"Headphones", "6.1.7", "Headphones"}};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(fake_sal::state().queries.size(), std::size_t(3));
}

void TestAudioComponentManager::givesAnEmptyDescriptionsVersionToDevicesThatFitNoEarlierRow()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones", "Other"};
    fake_sal::state().rows = {{"Headphones", "1", "Headphones"}, {"", "2", "zzz"}};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).back().second, std::string("1"));
    QCOMPARE(properties(manager, 1).back().second, std::string("2"));
}

void TestAudioComponentManager::reportsTheFormatOfADeviceThatCannotBeOpened()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    fake.nextDeviceId = 0;
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).size(), std::size_t(4));
    QCOMPARE(properties(manager, 0).at(2).second, std::string("22050"));
    QCOMPARE(fake.count("close"), 0);
}

void TestAudioComponentManager::reportsTheClipsFormat()
{
    wave_files::writeClipSet(folder(), QStringLiteral("en_US"), wave_files::wave(48000, 1, 100));
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).at(1).second, std::string("1"));
    QCOMPARE(properties(manager, 0).at(2).second, std::string("48000"));
}

void TestAudioComponentManager::formatsNumbersAsTheHostDoes()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    fake_sal::state().numberPrefix = "#";
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).at(1).second, std::string("#2"));
    QCOMPARE(properties(manager, 0).at(2).second, std::string("#22050"));
}

void TestAudioComponentManager::formatsNumbersItselfWithoutTheHostsFormatter()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    fake_sal::state().hasNumberHandler = false;
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).at(2).second, std::string("22050"));
}

void TestAudioComponentManager::copesWithoutABackEndName()
{
    FakeSdl fake;
    fake.deviceNames = {"Headphones"};
    fake.driver.reset();
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(properties(manager, 0).at(3), (std::pair<std::string, std::string>{"DRIVER_NAME", ""}));
}

void TestAudioComponentManager::closesEveryDeviceBeforeItOpensTheNext()
{
    FakeSdl fake;
    fake.deviceNames = {"A", "B"};
    AudioComponentManager manager(id_);
    manager.refresh();
    QCOMPARE(fake.deviceCalls(), (std::vector<std::string>{"count 0", "count 0", "name 0 0", "open A 0", "close 2", "name 1 0",
                                                           "open B 0", "close 2"}));
    QCOMPARE(fake.count("free null"), 2);
}

void TestAudioComponentManager::keepsWhatIsListedWhenMemoryRunsOut()
{
    FakeSdl fake;
    fake.deviceNames = {"A", "B", "C"};
    fake_sal::state().failingQuery = 2;
    AudioComponentManager manager(id_);
    QVERIFY_EXCEPTION_THROWN(manager.refresh(), std::bad_alloc);
    QCOMPARE(names(manager), (std::vector<std::string>{"A"}));
    QCOMPARE(fake.count("open"), 2);
    QCOMPARE(fake.count("close"), 2); // also the device that was being described
}

void TestAudioComponentManager::logsARefreshThatAServiceEnds()
{
    FakeSdl fake;
    fake.deviceNames = {"A", "B"};
    sdl().deviceName = [](int index, int) -> const char * { return index == 0 ? "A" : throw 42; };
    AudioComponentManager manager(id_);
    QTest::ignoreMessage(QtWarningMsg, "refresh ended early: a service of the host threw");
    manager.refresh();
    QCOMPARE(names(manager), (std::vector<std::string>{"A"}));
}

void TestAudioComponentManager::componentAnswersTheSharedOperations()
{
    AudioComponent component("Headphones");
    QCOMPARE(component.name(), std::string("Headphones"));
    QVERIFY(component.info().id.empty()); // until it is described
    QVERIFY(component.subComponents().empty());
    QVERIFY(component.reserved4() == nullptr);
    QVERIFY(component.reserved5());
    QVERIFY(component.reserved6());
    QVERIFY(component.reserved8());
    component.reserved7(); // nothing happens in these three
    component.reserved9();
    component.reserved10();
    QVERIFY(component.info().properties.empty());
    QCOMPARE(component.instructionsState(), 0);
    component.setInstructionsState(-5);
    QCOMPARE(component.instructionsState(), -5);
    QCOMPARE(component.clipState().deviceId, SDL_AudioDeviceID(0));
    QCOMPARE(component.clipState().firstSpare, 0U);
    QCOMPARE(component.clipState().secondSpare, 1U);
    QCOMPARE(component.clipState().spec.freq, 0);
    QVERIFY(!component.clipState().clip);
}

void TestAudioComponentManager::dropsForeignComponentsWithoutDestroyingThem()
{
    // A manager that lets the test put something else into its list.
    struct OpenManager : SystemComponentManager {
        using SystemComponentManager::components;
    };
    int destroyed = 0;
    ForeignComponent foreign(destroyed);
    const FakeSdl fake;
    {
        AudioComponentManager manager(id_);
        (manager.*(&OpenManager::components))().push_back(&foreign);
        manager.refresh();
        QCOMPARE(manager.componentCount(), std::uint64_t(0));
        (manager.*(&OpenManager::components))().push_back(&foreign);
    }
    QCOMPARE(destroyed, 0);
}

QTEST_GUILESS_MAIN(TestAudioComponentManager)
#include "tst_audio_component_manager.moc"
