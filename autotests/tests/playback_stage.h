// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_component.h"
#include "autotests/support/scripted_context.h"
#include "autotests/support/wave_files.h"
#include "module/device_hints.h"
#include "module/test_with_device_hint.h"
#include "tests/audio_playback_test.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMetaType>

#include <string>
#include <vector>

/// The parts that the tests of the playback test's decisions have in common.
namespace playback {

using Calls = std::vector<std::string>;

inline const ostra::EntityId identity(15, 1, 1);

inline const std::string started = "report 0 ";
inline const std::string instructions = "input AUDIO_PLAYBACK_TEST|AUDIO_PLAYBACK_TEST_INSTRUCTIONS|1 1 1|plain|0 0 0";
inline const std::string dialog = "input kTkAdvancedTestInputTitle||1 3 0|widget|0 0 0";
inline const std::string canReceive = "can receive input";
inline const std::string events = "events";

inline const std::string eventKey = "TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED";
inline const std::string unsupportedKey =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";
inline const std::string wrongKey = "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE";
inline const std::string silentKey = "USER_DID_NOT_REPORT_SOUND";
inline const std::string accessKey = "AUDIO_DEVICE_COULD_NOT_BE_ACCESSED";
inline const std::string hint = "POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS";

// What ends a run with a key: the progress first, the message second.
inline Calls ending(const std::string &key, int level)
{
    return {"report 100 " + key, "message " + key + " " + std::to_string(level) + " 0"};
}

inline Calls operator+(Calls calls, const Calls &more)
{
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

// The way to the dialog of a user who accepted the instructions before.
inline const Calls knownUser{started, events, events, canReceive, dialog};

class ForeignComponent final : public ostra::SystemComponent {
public:
    ForeignComponent() : ostra::SystemComponent("a disk") {}
    void *reserved4() override { return nullptr; }
    bool reserved5() override { return true; }
    bool reserved6() override { return true; }
    void reserved7() override {}
    bool reserved8() override { return true; }
    void reserved9() override {}
};

// A context whose host executes the widget, and the device that it is about.
struct Stage {
    explicit Stage(std::int32_t state = 1)
    {
        device.setInstructionsState(state);
        context.onWidget = [](ostra::InputRequest &request) { request.widget->exec(nullptr, nullptr); };
    }
    std::uint32_t run() { return ostra::AudioPlaybackTest(identity).run(&context); }
    std::uint32_t runWithHint()
    {
        return ostra::TestWithDeviceHint<ostra::AudioPlaybackTest>(identity, ostra::playbackHint()).run(&context);
    }

    ostra::audio::AudioComponent device{"Speakers"};
    ScriptedContext context{&device};
};

inline QString clip(int digit)
{
    return wave_files::clip(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), digit);
}

/// All ten clips of the language that the configuration in the current folder names.
inline void writeClips()
{
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
}

inline void removeClips() { QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively(); }

} // namespace playback

Q_DECLARE_METATYPE(playback::Calls)
