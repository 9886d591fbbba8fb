// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AudioPlaybackTestWidget;
}

namespace bench {

/// The playback test's form in a bare dialog, with none of the module's code behind it.
struct PlaybackWidgets {
    PlaybackWidgets();
    ~PlaybackWidgets();
    PlaybackWidgets(const PlaybackWidgets &) = delete;
    PlaybackWidgets &operator=(const PlaybackWidgets &) = delete;

    QDialog dialog;
    std::unique_ptr<Ui::AudioPlaybackTestWidget> form;
};

} // namespace bench
