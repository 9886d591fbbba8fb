// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_component.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/wave_files.h"
#include "contract/test_context.h"
#include "resources/icons.h"
#include "utils/dpi.h"
#include "utils/screen_sources.h"
#include "views/audio_playback_test_view.h"
#include "views/digit_sequence.h"

#include <QCoreApplication>
#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What a test of the playback view chooses and counts.
namespace playback_fixture {

inline std::deque<int> digits; ///< drawn next; when they run out the test's sequence is 0 1 2
inline std::vector<std::string> guardCalls;
inline std::uint32_t monitorDpi = 96;

inline int nextDigit()
{
    if (digits.empty())
        digits = {0, 1, 2};
    const int digit = digits.front();
    digits.pop_front();
    return digit;
}

class RecordingGuard final : public ostra::audio::AudioControllerVolume {
public:
    bool setVolume(std::int32_t percent) override
    {
        guardCalls.push_back("set " + std::to_string(percent));
        return false;
    }
    bool restoreVolume() override
    {
        guardCalls.emplace_back("restore");
        return false;
    }
    bool reapplyCurrentVolume() override { return false; }
};

inline ostra::audio::VolumeGuard recordingGuard(std::int32_t percent)
{
    guardCalls.push_back("guard " + std::to_string(percent));
    return ostra::audio::VolumeGuard(new RecordingGuard);
}

/// A host whose pending events the test raises.
class EventContext final : public ostra::TestContext, public ostra::EventSource {
public:
    ostra::SystemComponent *component() override { return nullptr; }
    ostra::MessageSink *messages() override { return nullptr; }
    ostra::ProgressReporter *reporter() override { return nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override { return wantsStop; }
    ostra::EventSource *events() override { return hasEvents ? this : nullptr; }
    std::uint32_t pendingEvents() override { return flags; }

    bool wantsStop = false;
    bool hasEvents = true;
    std::uint32_t flags = 0;
};

/// A view on a device that only records what is done with it. The clips are there, silent, unless `removeClips` is called.
class Playback {
public:
    explicit Playback(std::deque<int> drawn = {0, 1, 2})
    {
        digits = std::move(drawn);
        guardCalls.clear();
        ostra::initIcons();
        ostra::playbackSources() = {&nextDigit, &recordingGuard};
        ostra::utils::screenSources().primaryMonitorDpi = []() -> std::optional<std::uint32_t> { return monitorDpi; };
        ostra::utils::Dpi::destroyInstance();
        wave_files::write(settings_.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=german\n");
        QDir::setCurrent(settings_.path());
        wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("de_DE"),
                                 wave_files::wave(48000, 2, 48));
        component = std::make_unique<ostra::audio::AudioComponent>("Speakers");
        view = std::make_unique<ostra::AudioPlaybackTestView>(nullptr, nullptr, 0, component.get(), &context);
    }

    ~Playback()
    {
        view.reset();
        QDir::setCurrent(QCoreApplication::applicationDirPath());
        removeClips();
        ostra::playbackSources() = {};
    }

    Playback(const Playback &) = delete;
    Playback &operator=(const Playback &) = delete;

    static void removeClips()
    {
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
    }

    template <typename Widget = QWidget>
    Widget &at(const char *name) const
    {
        auto *widget = view->findChild<Widget *>(QStringLiteral("audio_playback_test_") + QLatin1StringView(name));
        if (widget == nullptr)
            qFatal("no widget %s", name);
        return *widget;
    }
    bool shows(const char *name) const { return !at(name).isHidden(); }
    QPushButton &key(int digit) const
    {
        return at<QPushButton>(qPrintable(QStringLiteral("numpad_button_unpressed_%1").arg(digit)));
    }
    QPushButton &pressedKey(int digit) const
    {
        return at<QPushButton>(qPrintable(QStringLiteral("numpad_button_pressed_%1").arg(digit)));
    }

    /// "set", "current" or "unset" for each position; anything else names what is shown together.
    QString inputs() const
    {
        QStringList result;
        for (const char *position : {"first", "second", "third"}) {
            QStringList shown;
            for (const char *state : {"set", "current", "unset"}) {
                if (shows(qPrintable(QStringLiteral("%1_input_%2").arg(QLatin1StringView(position), QLatin1StringView(state)))))
                    shown.append(QLatin1StringView(state));
            }
            result.append(shown.join(u'+'));
        }
        return result.join(u' ');
    }

    void type(std::initializer_list<int> typed) const
    {
        for (const int digit : typed)
            key(digit).click();
    }

    FakeSdl sdl;
    EventContext context;
    std::unique_ptr<ostra::audio::AudioComponent> component;
    std::unique_ptr<ostra::AudioPlaybackTestView> view;

private:
    QTemporaryDir settings_;
};

} // namespace playback_fixture
