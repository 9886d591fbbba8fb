// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class QObject;
class QWidget;

namespace ostra {

class TestContext;

namespace audio {
class AudioComponent;
}

/// Takes the place of the playback test's dialog where a test program is linked without the real one: no window, the outcome
/// is told beforehand. What it was given and asked is noted.
class AudioPlaybackTestView {
public:
    struct Script {
        int outcome = 3;
        int result = 1;
        bool throws = false; ///< it cannot be made

        QObject *eventFilter = nullptr;
        std::uintptr_t word = 0;
        const audio::AudioComponent *component = nullptr;
        const TestContext *systemEvents = nullptr;
        const TestContext *watcher = nullptr;
        std::vector<std::string> calls;
    };
    static Script &script();

    AudioPlaybackTestView(QWidget *parent, QObject *eventFilter, std::uintptr_t word, audio::AudioComponent *component,
                          TestContext *systemEvents);
    ~AudioPlaybackTestView();
    AudioPlaybackTestView(const AudioPlaybackTestView &) = delete;
    AudioPlaybackTestView &operator=(const AudioPlaybackTestView &) = delete;

    void setCancellationWatcher(TestContext *watcher);
    void raiseOnce();
    int exec();
    int outcome() const;
};

} // namespace ostra

using ScriptedView = ostra::AudioPlaybackTestView;
