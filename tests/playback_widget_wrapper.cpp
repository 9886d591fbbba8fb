// SPDX-License-Identifier: Apache-2.0
#include "tests/playback_widget_wrapper.h"

#include "contract/test_context.h"
#include "views/audio_playback_test_view.h"

namespace ostra {

template class AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView>;

} // namespace ostra
