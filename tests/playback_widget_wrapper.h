// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/abstract_widget_wrapper.h"

#include <bit>
#include <cstdint>

namespace ostra {

class AudioPlaybackTestView;
class TestContext;

namespace audio {
class AudioComponent;
}

/// Hands the playback test's dialog to the host. Made on the thread of the run and executed on the GUI thread while that thread
/// waits; only `exec` touches a window.
template <class View>
class AudioPlayBackTestWidgetWrapper final : public AbstractWidgetWrapper {
public:
    /// What the view starts with. A host that never executes the wrapper must not make a silent pass of it.
    static constexpr std::int32_t notFinished = 3;

    /// Both must outlive the wrapper. The context is the dialog's cancellation watcher and its source of system events.
    AudioPlayBackTestWidgetWrapper(TestContext *context, audio::AudioComponent *component)
        : context_(context), component_(component), systemEvents_(context)
    {}

    /// Builds the view, brings it to the front once, runs it and takes its outcome. Throws nothing: what the view cannot do
    /// leaves the outcome as it was and answers 0.
    int exec(QWidget *parent, QObject *argument) override;

    /// The view's outcome after `exec`: 0 passed, 1 second sequence wrong, 2 no sound heard, 3 closed or no clip, 5 event.
    std::int32_t outcome() const noexcept { return outcome_; }

private:
    int runView(QWidget *parent, QObject *eventFilter);

    TestContext *context_;
    std::int32_t outcome_ = notFinished;
    audio::AudioComponent *component_;
    TestContext *systemEvents_;
};

// Not inline, so that who only makes a wrapper needs to know nothing of its view.
template <class View>
int AudioPlayBackTestWidgetWrapper<View>::exec(QWidget *parent, QObject *argument)
{
    try {
        return runView(parent, argument);
    } catch (...) {
        return 0;
    }
}

template <class View>
int AudioPlayBackTestWidgetWrapper<View>::runView(QWidget *parent, QObject *eventFilter)
{
    View view(parent, eventFilter, std::bit_cast<std::uintptr_t>(context_), component_, systemEvents_);
    view.setCancellationWatcher(context_);
    view.raiseOnce();
    const int result = view.exec();
    outcome_ = view.outcome();
    return result;
}

extern template class AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView>;

} // namespace ostra
