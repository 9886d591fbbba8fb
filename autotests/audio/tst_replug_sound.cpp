// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with the sinks "Speakers" and "Headset": the second is unplugged and plugged in again.
#include "audio/audio_component_manager.h"
#include "audio/audio_devices.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QTest>

#include <string>
#include <vector>

using namespace ostra::audio;

namespace {

constexpr int bound = 10000; // ms; the sound library hears of a device from a thread of its own

const std::string headset = "Headset";

std::vector<std::string> namesBeginningWith(const std::string &beginning, const AudioComponentManager &manager)
{
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        if (manager.componentAt(index)->name().starts_with(beginning))
            names.push_back(manager.componentAt(index)->name());
    return names;
}

std::vector<std::string> listedAsHeadset()
{
    std::vector<std::string> names = listAudioDevices(false);
    std::erase_if(names, [](const std::string &name) { return !name.starts_with(headset); });
    return names;
}

void plug(const QString &sinkName)
{
    pulse_truth::run({QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
                      QStringLiteral("sink_name=") + sinkName, QStringLiteral("sink_properties=device.description=Headset")});
}

// Whether a device opened by `name` plays on that sink within so many milliseconds.
bool playsOn(const QString &sinkName, const std::string &name, int limit = bound)
{
    SDL_AudioSpec wanted{};
    wanted.freq = 48000;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 2;
    wanted.samples = 1024;
    const SDL_AudioDeviceID device = SDL_OpenAudioDevice(name.c_str(), 0, &wanted, nullptr, 0);
    if (device == 0)
        return false;
    const bool plays = QTest::qWaitFor([&sinkName] { return pulse_truth::isPlayedOn(sinkName); }, limit);
    SDL_CloseAudioDevice(device);
    return plays;
}

} // namespace

class TestReplugSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void aDeviceThatWasMissedComesBackUnderItsName();
    void aDeviceThatComesBackUnnoticedIsListedOnce();
};

void TestReplugSound::initTestCase()
{
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

void TestReplugSound::aDeviceThatWasMissedComesBackUnderItsName()
{
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    QCOMPARE(namesBeginningWith(headset, manager), std::vector<std::string>{headset});
    pulse_truth::remove(QStringLiteral("sink2"));
    QTRY_VERIFY_WITH_TIMEOUT(listedAsHeadset().empty(), bound);
    manager.refresh();
    QCOMPARE(namesBeginningWith(headset, manager).size(), 0U);

    plug(QStringLiteral("again"));
    QTRY_COMPARE_WITH_TIMEOUT(listedAsHeadset().size(), 1U, bound);
    manager.refresh();
    QCOMPARE(namesBeginningWith(headset, manager), std::vector<std::string>{headset});
    QVERIFY(isAudioDeviceConnected(headset, false));
    QVERIFY(playsOn(QStringLiteral("again"), headset));
    pulse_truth::remove(QStringLiteral("again"));
    QTRY_VERIFY_WITH_TIMEOUT(listedAsHeadset().empty(), bound);
}

// Nobody lists the devices while it is gone. The sound library may then give it another name; whichever it is, it is listed
// once and opens, and the name from before counts for what it is.
void TestReplugSound::aDeviceThatComesBackUnnoticedIsListedOnce()
{
    plug(QStringLiteral("first"));
    QTRY_COMPARE_WITH_TIMEOUT(listedAsHeadset(), std::vector<std::string>{headset}, bound);
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    const QString number = pulse_truth::numberOf(QStringLiteral("first"));
    QVERIFY(!number.isEmpty());
    pulse_truth::remove(QStringLiteral("first"));
    plug(QStringLiteral("second"));
    QVERIFY(number != pulse_truth::numberOf(QStringLiteral("second")));
    // Until the sound library has heard of both, the one name listed may still be that of the sink that is gone.
    const auto isSettled = [] {
        const std::vector<std::string> names = listedAsHeadset();
        return names.size() == 1 && playsOn(QStringLiteral("second"), names.front(), 1000);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isSettled(), bound);
    manager.refresh();
    const std::vector<std::string> names = namesBeginningWith(headset, manager);
    QCOMPARE(names.size(), 1U);
    qInfo("it came back as %s", names.front().c_str());
    QVERIFY2(names.front() == headset || names.front() == headset + " (2)", names.front().c_str());
    QCOMPARE(isAudioDeviceConnected(headset, false), names.front() == headset);
    QVERIFY(playsOn(QStringLiteral("second"), names.front()));
}

QTEST_GUILESS_MAIN(TestReplugSound)
#include "tst_replug_sound.moc"
