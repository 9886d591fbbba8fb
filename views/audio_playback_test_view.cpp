// SPDX-License-Identifier: Apache-2.0
#include "views/audio_playback_test_view.h"

#include "audio/audio_component.h"
#include "audio/sound_clip.h"
#include "contract/sal.h"
#include "ui_audio_playback_test_view.h"
#include "utils/dpi.h"
#include "utils/guarded.h"
#include "utils/pace.h"
#include "views/playback_form.h"
#include "views/system_events.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace ostra {

namespace {

constexpr std::chrono::milliseconds playDelay{1000};
constexpr std::chrono::milliseconds playbackStep{1};
constexpr std::chrono::milliseconds systemEventInterval{300};
constexpr int fullVolumePercent = 100;
constexpr std::int32_t widestUnwrappedDpi = 144;

std::unique_ptr<Ui::AudioPlaybackTestWidget> makeForm(QDialog &dialog)
{
    dialog.setWindowModality(Qt::ApplicationModal);
    auto form = std::make_unique<Ui::AudioPlaybackTestWidget>();
    form->setupUi(&dialog);
    return form;
}

std::uint64_t hostTicks()
{
    const auto ask = [] {
        sal::Timer *timer = get_timer();
        return timer == nullptr ? std::uint64_t{0} : timer->ticks();
    };
    return utils::answerOr(ask, std::uint64_t{0});
}

} // namespace

AudioPlaybackTestView::AudioPlaybackTestView(QWidget *parent, QObject *eventFilter, std::uintptr_t /*word*/,
                                             audio::AudioComponent *component, TestContext *systemEvents)
    : InputDialog(parent, eventFilter, Qt::Dialog | Qt::FramelessWindowHint), ui_(makeForm(*this)), component_(component),
      systemEvents_(systemEvents), keypad_(*ui_), indicators_(*ui_),
      soundIndicator_(*ui_->audio_playback_test_sound_indicator_gif, *this),
      drag_(*this, *ui_->audio_playback_test_header, *ui_->audio_playback_test_header_close)
{
    setAttribute(Qt::WA_NativeWindow);
    setAccessibleDescription(QString::fromStdString(component->name()));
    connectDigits();
    connectControls();
    playback_form::setTexts(*ui_, *this);
    const utils::Dpi *dpi = utils::Dpi::instance();
    playback_form::scale(*ui_, *this, dpi == nullptr ? 1.0 : dpi->scaleFactor());
    prepareFocus();
    playback_form::showFirstSequence(*ui_);
    soundIndicator_.showIdle();
    drawNewSequence();
    playDelayTimer_.setSingleShot(true);
    playDelayTimer_.start(utils::paced(playDelay));
    systemEventTimer_.start(utils::paced(systemEventInterval));
}

AudioPlaybackTestView::~AudioPlaybackTestView()
{
    closeOpenDevice(); // a stopped test ends without done()
}

// Whatever could not be done, no verdict on the device may come of it.
template <typename Body>
void AudioPlaybackTestView::guard(Body body) noexcept
{
    utils::guarded(body, [this] { finish(playback_outcome::notCompleted); });
}

void AudioPlaybackTestView::connectDigits()
{
    using Slot = void (AudioPlaybackTestView::*)();
    constexpr std::array<Slot, PlaybackKeypad::digitCount> digitSlots = {
        &AudioPlaybackTestView::ZeroInputButtonClicked,   &AudioPlaybackTestView::FirstInputButtonClicked,
        &AudioPlaybackTestView::SecondInputButtonClicked, &AudioPlaybackTestView::ThirdInputButtonClicked,
        &AudioPlaybackTestView::FourthInputButtonClicked, &AudioPlaybackTestView::FifthInputButtonClicked,
        &AudioPlaybackTestView::SixthInputButtonClicked,  &AudioPlaybackTestView::SeventhInputButtonClicked,
        &AudioPlaybackTestView::EighthInputButtonClicked, &AudioPlaybackTestView::NinethInputButtonClicked};
    int digit = 0;
    for (const Slot slot : digitSlots)
        connect(&keypad_.unpressed(digit++), &QPushButton::clicked, this, slot);
}

void AudioPlaybackTestView::connectControls()
{
    using View = AudioPlaybackTestView;
    connect(ui_->audio_playback_test_header_close, &QPushButton::clicked, this, &View::OnCloseButtonClicked);
    connect(ui_->audio_playback_test_fail_button, &QPushButton::clicked, this, &View::OnFailButtonClicked);
    connect(ui_->audio_playback_test_numpad_backspace_button, &QPushButton::clicked, this, &View::OnBackspaceButtonClicked);
    connect(ui_->audio_playback_test_numpad_repeat_button, &QPushButton::clicked, this, &View::PlayAudio);
    connect(&playDelayTimer_, &QTimer::timeout, this, &View::PlayAudio);
    connect(&playbackStepTimer_, &QTimer::timeout, this, &View::CheckAudioIsPlaying);
    connect(&systemEventTimer_, &QTimer::timeout, this, &View::CheckSystemEventAbortion);
}

// The dialog itself has the keyboard until the user tabs: on the first button of the chain a blank would close the test.
void AudioPlaybackTestView::prepareFocus() { setFocus(); }

void AudioPlaybackTestView::drawNewSequence()
{
    entered_.clear();
    expected_ = drawSequence();
    keypad_.releaseAll();
    indicators_.reset();
}

void AudioPlaybackTestView::startSecondSequence()
{
    isFirstAttempt_ = false;
    drawNewSequence();
    const utils::Dpi *dpi = utils::Dpi::instance();
    playback_form::showSecondSequence(*ui_, dpi != nullptr && dpi->dpiStep() > widestUnwrappedDpi);
    clipIndex_ = 0;
    isReadyToPlay_ = true;
    playDelayTimer_.start(utils::paced(playDelay));
}

void AudioPlaybackTestView::type(int digit)
{
    guard([this, digit] { takeDigit(digit); });
}

void AudioPlaybackTestView::takeDigit(int digit)
{
    // Keys that were pressed while a digit sounded arrive late, maybe after the end.
    if (hasFinished() || entered_.size() >= sequenceLength)
        return;
    keypad_.setPressed(digit, true);
    if (std::find(entered_.begin(), entered_.end(), digit) != entered_.end())
        return;
    indicators_.showDigit(entered_.size(), digit);
    entered_.push_back(digit);
    if (entered_.size() == sequenceLength)
        judge();
    else
        indicators_.showCurrent(entered_.size());
}

void AudioPlaybackTestView::judge()
{
    playDelayTimer_.stop();
    playbackStepTimer_.stop();
    stopPlayback();
    if (entered_ == expected_)
        finish(playback_outcome::passed);
    else if (!isFirstAttempt_)
        finish(playback_outcome::wrongSequence);
    else
        startSecondSequence();
}

void AudioPlaybackTestView::takeBackLastDigit()
{
    if (hasFinished() || entered_.empty())
        return;
    const int digit = entered_.back();
    entered_.pop_back();
    indicators_.clearDigit(entered_.size());
    indicators_.showCurrent(entered_.size());
    indicators_.showUnset(entered_.size() + 1);
    keypad_.setPressed(digit, false);
}

void AudioPlaybackTestView::showPlayback()
{
    setRepeatEnabled(false);
    soundIndicator_.showPlaying();
    if (clipIndex_ == 0)
        holdFullVolume();
    if (clipIndex_ < sequenceLength && isReadyToPlay_) {
        isReadyToPlay_ = false;
        playbackStepTimer_.start(playbackStep);
        clipStart_ = hostTicks();
        return;
    }
    if (clipIndex_ == sequenceLength)
        endOfSequence();
}

// A second guard beside the first would keep the raised volumes and give those back.
void AudioPlaybackTestView::holdFullVolume()
{
    if (volumeGuard_ == nullptr)
        volumeGuard_ = playbackSources().volumeGuard(fullVolumePercent);
    else
        volumeGuard_->setVolume(fullVolumePercent);
}

void AudioPlaybackTestView::endOfSequence()
{
    clipIndex_ = 0;
    isReadyToPlay_ = true;
    setRepeatEnabled(true);
    soundIndicator_.showIdle();
    volumeGuard_.reset();
}

// Without its focus taken away first, the button would hand it on to its neighbour when it is disabled: the fail button.
void AudioPlaybackTestView::setRepeatEnabled(bool isEnabled)
{
    QPushButton &repeat = *ui_->audio_playback_test_numpad_repeat_button;
    if (!isEnabled && focusWidget() == &repeat) {
        repeatHadFocus_ = true;
        setFocus();
    }
    repeat.setEnabled(isEnabled);
    if (isEnabled && std::exchange(repeatHadFocus_, false) && focusWidget() == this)
        repeat.setFocus();
}

// The hold blocks on purpose, without a local event loop: nothing else may happen while a digit sounds.
void AudioPlaybackTestView::playNextClip()
{
    if (hasFinished() || clipIndex_ >= sequenceLength)
        return;
    if (audio::loadClip(*component_, expected_.at(clipIndex_)) == 0) {
        finish(playback_outcome::notCompleted);
        return;
    }
    audio::playClip(*component_);
    audio::closeDevice(*component_);
    ++clipIndex_;
    isReadyToPlay_ = true;
    playbackStepTimer_.stop();
    playDelayTimer_.start(utils::paced(playDelay));
}

void AudioPlaybackTestView::CheckSystemEventAbortion()
{
    const EventAnswer answer = askForEvents(systemEvents_);
    if (answer == EventAnswer::goOn)
        return;
    // If the host threw, nobody can tell any more what may have spoilt the test.
    const bool isEvent = answer == EventAnswer::cancel;
    finish(isEvent ? playback_outcome::systemEvent : playback_outcome::notCompleted);
}

void AudioPlaybackTestView::PlayAudio()
{
    guard([this] { showPlayback(); });
}

void AudioPlaybackTestView::CheckAudioIsPlaying()
{
    guard([this] { playNextClip(); });
}

void AudioPlaybackTestView::OnBackspaceButtonClicked()
{
    guard([this] { takeBackLastDigit(); });
}

void AudioPlaybackTestView::OnCloseButtonClicked() { finish(playback_outcome::notCompleted); }
void AudioPlaybackTestView::OnFailButtonClicked() { finish(playback_outcome::noSound); }
void AudioPlaybackTestView::ZeroInputButtonClicked() { type(keypad_.digitOn(0)); }
void AudioPlaybackTestView::FirstInputButtonClicked() { type(keypad_.digitOn(1)); }
void AudioPlaybackTestView::SecondInputButtonClicked() { type(keypad_.digitOn(2)); }
void AudioPlaybackTestView::ThirdInputButtonClicked() { type(keypad_.digitOn(3)); }
void AudioPlaybackTestView::FourthInputButtonClicked() { type(keypad_.digitOn(4)); }
void AudioPlaybackTestView::FifthInputButtonClicked() { type(keypad_.digitOn(5)); }
void AudioPlaybackTestView::SixthInputButtonClicked() { type(keypad_.digitOn(6)); }
void AudioPlaybackTestView::SeventhInputButtonClicked() { type(keypad_.digitOn(7)); }
void AudioPlaybackTestView::EighthInputButtonClicked() { type(keypad_.digitOn(8)); }
void AudioPlaybackTestView::NinethInputButtonClicked() { type(keypad_.digitOn(9)); }

void AudioPlaybackTestView::stopTimers()
{
    playDelayTimer_.stop();
    playbackStepTimer_.stop();
    systemEventTimer_.stop();
}

void AudioPlaybackTestView::stopPlayback()
{
    if (audio::isPlaying(*component_))
        audio::closeDevice(*component_);
}

// A device that was opened and never started is paused, not playing; left open, it would be one of the few that can be.
void AudioPlaybackTestView::closeOpenDevice()
{
    if (component_->clipState().isOpen)
        audio::closeDevice(*component_);
}

// The first end counts.
void AudioPlaybackTestView::finish(int outcome)
{
    if (hasFinished())
        return;
    stopPlayback();
    outcome_ = outcome;
    done(1);
}

void AudioPlaybackTestView::done(int r)
{
    stopTimers();
    stopPlayback();
    closeOpenDevice();
    InputDialog::done(r);
}

void AudioPlaybackTestView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9)
        type(event->key() - Qt::Key_0);
    else if (event->key() == Qt::Key_Escape)
        OnCloseButtonClicked();
    InputDialog::keyPressEvent(event);
}

void AudioPlaybackTestView::mousePressEvent(QMouseEvent *event)
{
    guard([=, this] { drag_.press(*event); });
}

void AudioPlaybackTestView::mouseMoveEvent(QMouseEvent *event)
{
    guard([=, this] { drag_.move(*event); });
}

void AudioPlaybackTestView::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    guard([this] { drag_.release(); });
}

// A translucent window paints no background of its own: between the rows one would look through it.
void AudioPlaybackTestView::paintEvent(QPaintEvent * /*event*/)
{
    utils::guarded([this] {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    });
}

} // namespace ostra
