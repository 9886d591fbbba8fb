// SPDX-License-Identifier: Apache-2.0
// Against a real sound server whose sinks, sink1 to sink4, have the descriptions of `names`.
#include "audio/audio_component_manager.h"
#include "audio/audio_devices.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QTest>

#include <algorithm>
#include <string>
#include <vector>

using namespace ostra::audio;

namespace {

constexpr int bound = 10000; // ms

class Playing {
public:
    explicit Playing(const std::string &name)
    {
        SDL_AudioSpec wanted{};
        wanted.freq = 48000;
        wanted.format = AUDIO_S16SYS;
        wanted.channels = 2;
        wanted.samples = 1024;
        device_ = SDL_OpenAudioDevice(name.c_str(), 0, &wanted, nullptr, 0);
    }
    ~Playing()
    {
        if (device_ != 0)
            SDL_CloseAudioDevice(device_);
    }
    Playing(const Playing &) = delete;
    Playing &operator=(const Playing &) = delete;

    bool isOpen() const { return device_ != 0; }

private:
    SDL_AudioDeviceID device_ = 0;
};

} // namespace

class TestHostileSinksSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void isListedMadeAndOpenedByItsName_data();
    void isListedMadeAndOpenedByItsName();
};

void TestHostileSinksSound::initTestCase()
{
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

void TestHostileSinksSound::isListedMadeAndOpenedByItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sink");
    QTest::newRow("ampersand") << QStringLiteral("A&B") << QStringLiteral("sink1");
    QTest::newRow("tags") << QStringLiteral("<b>x</b>") << QStringLiteral("sink2");
    QTest::newRow("right to left") << QStringLiteral("\u05e8\u05de\u05e7\u05d5\u05dc 5.1 (\u0633\u0645\u0627\u0639\u0629)")
                                   << QStringLiteral("sink3");
    QTest::newRow("six hundred letters") << QString(600, u'W') << QStringLiteral("sink4");
}

void TestHostileSinksSound::isListedMadeAndOpenedByItsName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, sink);
    const std::string text = name.toStdString();
    QVERIFY(isAudioDeviceConnected(text, false));
    AudioComponentManager manager({15, 0, 0});
    manager.refresh();
    QCOMPARE(manager.componentCount(), 4U);
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        names.push_back(manager.componentAt(index)->name());
    QCOMPARE(std::count(names.begin(), names.end(), text), 1);

    QVERIFY(!pulse_truth::numberOf(sink).isEmpty() && !pulse_truth::isPlayedOn(sink));
    const Playing playing(text);
    QVERIFY2(playing.isOpen(), SDL_GetError());
    QTRY_VERIFY_WITH_TIMEOUT(pulse_truth::isPlayedOn(sink), bound);
}

QTEST_GUILESS_MAIN(TestHostileSinksSound)
#include "tst_hostile_sinks_sound.moc"
