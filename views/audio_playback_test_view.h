// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/volume_guard.h"
#include "tests/dialog/input_dialog.h"
#include "views/header_drag.h"
#include "views/input_indicators.h"
#include "views/playback_keypad.h"
#include "views/sound_indicator.h"

#include <QString>
#include <QTimer>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Ui {
class AudioPlaybackTestWidget;
}

namespace ostra {

namespace audio {
class AudioComponent;
}

/// How the playback view ended.
namespace playback_outcome {
inline constexpr int passed = 0;
inline constexpr int wrongSequence = 1; ///< the second sequence did not match
inline constexpr int noSound = 2;       ///< the fail button
inline constexpr int notCompleted = 3;  ///< closed, a clip could not be played, or nothing happened yet
inline constexpr int systemEvent = 5;
} // namespace playback_outcome

/// Plays three different digits on a device, one a second, and lets the user type them back; a wrong answer gets one more
/// sequence. Every endpoint is held at full volume while a sequence is played, and given back by the destructor at the latest.
///
/// Readers go by `outcome`, never by the dialog's result: every end is done(1), and Escape then rejects the dialog as well.
/// While a digit sounds the GUI thread is blocked for a second. GUI thread only.
class AudioPlaybackTestView final : public InputDialog {
    Q_OBJECT

public:
    /// `parent` and `word` are not used. `eventFilter` and `systemEvents` may be null; `component` is never null. All must
    /// outlive the view. The first sequence begins one second after the construction.
    AudioPlaybackTestView(QWidget *parent, QObject *eventFilter, std::uintptr_t word, audio::AudioComponent *component,
                          TestContext *systemEvents);
    ~AudioPlaybackTestView() override;

    /// One of `playback_outcome`.
    int outcome() const noexcept { return outcome_; }

    /// Stops playback, then QDialog::done.
    void done(int r) override;

public slots: // in this order
    void OnCloseButtonClicked();
    void OnFailButtonClicked();
    void FirstInputButtonClicked();
    void SecondInputButtonClicked();
    void ThirdInputButtonClicked();
    void FourthInputButtonClicked();
    void FifthInputButtonClicked();
    void SixthInputButtonClicked();
    void SeventhInputButtonClicked();
    void EighthInputButtonClicked();
    void NinethInputButtonClicked();
    void ZeroInputButtonClicked();
    void OnBackspaceButtonClicked();
    void PlayAudio();
    void CheckAudioIsPlaying();
    void CheckSystemEventAbortion();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void connectDigits();
    void connectControls();
    void prepareFocus();
    void drawNewSequence();
    void startSecondSequence();
    void type(int digit);
    void judge();
    void holdFullVolume();
    void endOfSequence();
    void setRepeatEnabled(bool isEnabled);
    void stopTimers();
    void stopPlayback();
    void closeOpenDevice();
    void finish(int outcome);
    template <typename Body>
    void guard(Body body) noexcept;
    void takeDigit(int digit);
    void playNextClip();
    void takeBackLastDigit();
    void showPlayback();

    std::unique_ptr<Ui::AudioPlaybackTestWidget> ui_;
    audio::AudioComponent *component_;
    TestContext *systemEvents_;
    PlaybackKeypad keypad_;
    InputIndicators indicators_;
    SoundIndicator soundIndicator_;
    HeaderDrag drag_;
    std::vector<int> expected_;
    std::vector<int> entered_;
    bool isFirstAttempt_ = true;
    QTimer playDelayTimer_{this};
    QTimer playbackStepTimer_{this};
    QTimer systemEventTimer_{this};
    std::size_t clipIndex_ = 0;
    bool isReadyToPlay_ = true;
    bool repeatHadFocus_ = false;
    audio::VolumeGuard volumeGuard_;
    std::uint64_t clipStart_ = 0; ///< ticks of the host's timer
    int outcome_ = playback_outcome::notCompleted;
};

} // namespace ostra
