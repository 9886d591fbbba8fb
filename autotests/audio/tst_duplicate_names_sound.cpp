// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with the sinks "X (2)", "X" and "X": the sound library lists "X (2)" twice.
#include "audio/audio_component_manager.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"

#include <QTest>

#include <algorithm>

using namespace ostra::audio;

class TestDuplicateNamesSound : public QObject {
    Q_OBJECT

private slots:
    void keepsTheFirstDeviceOfAName();
};

void TestDuplicateNamesSound::keepsTheFirstDeviceOfAName()
{
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
    std::vector<std::string> listed;
    const int deviceCount = SDL_GetNumAudioDevices(0);
    for (int index = 0; index < deviceCount; ++index)
        listed.emplace_back(SDL_GetAudioDeviceName(index, 0));
    QCOMPARE(std::count(listed.begin(), listed.end(), "X (2)"), 2);
    QCOMPARE(std::count(listed.begin(), listed.end(), "X"), 1);

    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        names.push_back(manager.componentAt(index)->name());
    QCOMPARE(names.size(), listed.size() - 1);
    QCOMPARE(std::count(names.begin(), names.end(), "X (2)"), 1);
    QCOMPARE(std::count(names.begin(), names.end(), "X"), 1);
    SDL_Quit();
}

QTEST_GUILESS_MAIN(TestDuplicateNamesSound)
#include "tst_duplicate_names_sound.moc"
