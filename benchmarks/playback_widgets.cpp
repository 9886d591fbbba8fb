// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/playback_widgets.h"

#include "ui_audio_playback_test_view.h"

namespace bench {

PlaybackWidgets::PlaybackWidgets() : form(std::make_unique<Ui::AudioPlaybackTestWidget>()) { form->setupUi(&dialog); }

PlaybackWidgets::~PlaybackWidgets() = default;

} // namespace bench
