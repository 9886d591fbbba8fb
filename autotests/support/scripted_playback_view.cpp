// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/scripted_playback_view.h"

#include "tests/playback_widget_wrapper.h"

#include <stdexcept>

namespace ostra {

AudioPlaybackTestView::Script &AudioPlaybackTestView::script()
{
    static Script script;
    return script;
}

AudioPlaybackTestView::AudioPlaybackTestView(QWidget * /*parent*/, QObject *eventFilter, std::uintptr_t word,
                                             audio::AudioComponent *component, TestContext *systemEvents)
{
    if (script().throws)
        throw std::runtime_error("no dialog");
    script().calls = {"made"};
    script().eventFilter = eventFilter;
    script().word = word;
    script().component = component;
    script().systemEvents = systemEvents;
}

AudioPlaybackTestView::~AudioPlaybackTestView() { script().calls.emplace_back("destroyed"); }

void AudioPlaybackTestView::setCancellationWatcher(TestContext *watcher)
{
    script().calls.emplace_back("watched");
    script().watcher = watcher;
}

void AudioPlaybackTestView::raiseOnce() { script().calls.emplace_back("raised"); }

int AudioPlaybackTestView::exec()
{
    script().calls.emplace_back("executed");
    return script().result;
}

int AudioPlaybackTestView::outcome() const { return script().outcome; }

template class AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView>;

} // namespace ostra
