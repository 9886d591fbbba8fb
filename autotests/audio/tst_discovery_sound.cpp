// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with the sinks "X", "X" and "Y".
#include "audio/audio_component_manager.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/support/wave_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

using namespace ostra;
using namespace ostra::audio;

namespace {

decltype(SdlApi::openDevice) realOpen = nullptr;
std::vector<SDL_AudioSpec> obtainedSpecs;

SDL_AudioDeviceID openAndNote(const char *name, int isCapture, const SDL_AudioSpec *desired, SDL_AudioSpec *, int changes)
{
    SDL_AudioSpec obtained{};
    const SDL_AudioDeviceID device = realOpen(name, isCapture, desired, &obtained, changes);
    if (device != 0)
        obtainedSpecs.push_back(obtained);
    return device;
}

} // namespace

class TestDiscoverySound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void listsEveryDeviceUnderANameOfItsOwn();
    void tellsTheFallbackFormatWithoutClips();
    void tellsTheClipsFormat();
    void theEnvironmentChangesNoClipsFormat();

private:
    static PropertyList propertiesOf(const std::string &deviceName, AudioComponentManager &manager);

    QTemporaryDir state_;
};

void TestDiscoverySound::initTestCase()
{
    QVERIFY(QDir::setCurrent(state_.path()));
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

PropertyList TestDiscoverySound::propertiesOf(const std::string &deviceName, AudioComponentManager &manager)
{
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        if (manager.componentAt(index)->name() == deviceName)
            return manager.componentAt(index)->info().properties;
    return {};
}

void TestDiscoverySound::listsEveryDeviceUnderANameOfItsOwn()
{
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        names.push_back(manager.componentAt(index)->name());
    std::sort(names.begin(), names.end());
    std::erase(names, "PulseAudio");                                // Wine's own endpoint for the server's default sink
    QCOMPARE(names, (std::vector<std::string>{"X", "X (2)", "Y"})); // the sound library renames the second
}

void TestDiscoverySound::tellsTheFallbackFormatWithoutClips()
{
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    QCOMPARE(propertiesOf("Y", manager),
             (PropertyList{
                 {"UDI", "Y"}, {"NUMBER_OF_CHANNELS", "2"}, {"SAMPLE_RATE", "22050"}, {"DRIVER_NAME", soundDriverName()}}));
}

void TestDiscoverySound::tellsTheClipsFormat()
{
    const QString folder = QCoreApplication::applicationDirPath();
    wave_files::writeClipSet(folder, QStringLiteral("en_US"), wave_files::wave(48000, 1, 4800));
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    QDir(folder + QStringLiteral("/audio_files")).removeRecursively();
    QCOMPARE(propertiesOf("X", manager),
             (PropertyList{
                 {"UDI", "X"}, {"NUMBER_OF_CHANNELS", "1"}, {"SAMPLE_RATE", "48000"}, {"DRIVER_NAME", soundDriverName()}}));
}

// The sound library reads these where a format is left open; a clip leaves none. The device tells what it was opened with.
void TestDiscoverySound::theEnvironmentChangesNoClipsFormat()
{
    constexpr std::array<std::array<const char *, 2>, 4> values{{{"SDL_AUDIO_FREQUENCY", "8000"},
                                                                 {"SDL_AUDIO_FORMAT", "U8"},
                                                                 {"SDL_AUDIO_CHANNELS", "6"},
                                                                 {"SDL_AUDIO_SAMPLES", "64"}}};
    for (const auto &[name, value] : values)
        SDL_setenv(name, value, 1);
    realOpen = std::exchange(sdl().openDevice, &openAndNote);
    tellsTheClipsFormat();
    sdl().openDevice = realOpen;
    QVERIFY(obtainedSpecs.size() >= 3);
    for (const SDL_AudioSpec &obtained : obtainedSpecs) {
        QCOMPARE(obtained.freq, 48000);
        QCOMPARE(int(obtained.format), AUDIO_S16LSB);
        QCOMPARE(int(obtained.channels), 1);
        QVERIFY2(obtained.samples > 64, qPrintable(QString::number(obtained.samples)));
    }
    for (const auto &[name, value] : values)
        SDL_setenv(name, "", 1);
}

QTEST_GUILESS_MAIN(TestDiscoverySound)
#include "tst_discovery_sound.moc"
