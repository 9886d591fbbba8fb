// SPDX-License-Identifier: Apache-2.0
#include "host/operator/microphone_worker.h"

#include "host/core/capture_source.h"
#include "host/operator/real_input.h"
#include "host/operator/window_photographer.h"

#include <QAbstractButton>
#include <QEvent>
#include <QScrollArea>

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

namespace {

constexpr auto choiceButton = "microphone_test_radio_button";
constexpr auto nextButton = "microphone_test_next_button";
constexpr auto recordButton = "microphone_test_record_button";
constexpr auto playButton = "microphone_test_play_button";
constexpr auto closeButton = "microphone_test_header_close";

/// The listener tells a place up to 1.5 s after its end, and a sound server works a while behind.
constexpr qint64 listenerDelayMs = 2'500;
constexpr qint64 listenerLimitMs = 20'000;
/// A page takes a press at once; a slow machine may take its time to show the next one.
constexpr qint64 pageLimitMs = 20'000;
/// The recording ends by itself after seven seconds, the playback of it after as many.
constexpr qint64 jobLimitMs = 60'000;
/// What a source tells that delivers zeros only.
constexpr double digitalSilenceDbfs = -120.0;
/// Noise and other speech score below it; half a sentence scores above.
constexpr double doubtfulScore = 0.25;
/// Opening a device of a sound server that does not answer takes 30 s.
constexpr qint64 speakerLimitMs = 35'000;
/// The microphone is open by then: what is spoken before it is open is lost.
constexpr qint64 speakAfterMs = 600;
/// Channels hold the same when what is left of one without the other is that much quieter.
constexpr double sameChannelsDb = 40.0;
/// A channel holds nothing when it is that much quieter than the other.
constexpr double silentChannelDb = 60.0;

double powerOf(double decibels) { return std::pow(10.0, decibels / 10); }

double decibelsOf(double power) { return power > 0 ? 10 * std::log10(power) : -120.0; }

// A list that is longer than the dialog is scrolled, as a person would.
void bringIntoView(QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(widget);
    }
}

} // namespace

MicrophoneWorker::MicrophoneWorker(QWidget *dialog, const HeardLog &log, WindowPhotographer &photographer, Speech speech)
    : dialog_(dialog), exit_(dialog, closeButton), log_(log), photographer_(photographer), speech_(std::move(speech)),
      stepStartMs_(steadyNowMs())
{
    dialog->installEventFilter(this);
    watchPage(recordButton);
    watchPage(playButton);
    photographer_.take(dialog, QStringLiteral("microphone-choice"));
}

MicrophoneWorker::~MicrophoneWorker() = default;

void MicrophoneWorker::watchPage(const char *name)
{
    if (auto *button = dialog_->findChild<QWidget *>(QLatin1String(name)))
        button->installEventFilter(this);
}

void MicrophoneWorker::advance(bool isListenerLost)
{
    if (!dialog_ || !dialog_->isVisible())
        return;
    if (isListenerLost && !exit_.hasBegun())
        exit_.awaitItsOwnEnd(QStringLiteral("listener lost"));
    else if (exit_.hasBegun())
        exit_.advance();
    else
        work();
    if (exit_.isClosing())
        heard_.reset();
}

void MicrophoneWorker::work()
{
    if (step_ == Step::recording || step_ == Step::playing)
        lookAtVolumes();
    switch (step_) {
    case Step::choosing:
        return choose();
    case Step::preparing:
        return prepare();
    case Step::pressing:
        return pressRecord();
    case Step::recording:
        return speak();
    case Step::playing:
        return play();
    case Step::repeating:
        if (const QWidget *next = findShown(*dialog_, nextButton); next != nullptr && !next->isEnabled())
            enter(Step::playing);
        else if (inStepMs() > pageLimitMs)
            exit_.close(QStringLiteral("the dialog did not play again"));
        return;
    case Step::judging:
        return judge();
    case Step::leaving:
        return leave();
    }
}

// Not before: the microphone is known once it has been chosen.
void MicrophoneWorker::lookAtVolumes()
{
    if (!volumes_)
        volumes_.emplace(QStringList{speech_.playedOn, speech_.device, speech_.microphone, speech_.source});
    volumes_->look();
}

void MicrophoneWorker::enter(Step step)
{
    step_ = step;
    stepStartMs_ = steadyNowMs();
    pressedMs_ = 0;
}

bool MicrophoneWorker::press(const char *name)
{
    if (pressedMs_ > 0 && steadyNowMs() - pressedMs_ < pressAgainMs)
        return false;
    if (!clickOn(findShown(*dialog_, name)))
        return false;
    pressedMs_ = steadyNowMs();
    return true;
}

bool MicrophoneWorker::chooseMicrophone()
{
    QStringList names;
    const QList<QAbstractButton *> choices = dialog_->findChildren<QAbstractButton *>(QLatin1String(choiceButton));
    for (QAbstractButton *choice : choices) {
        names.append(choice->text());
        if (speech_.microphone.isEmpty() ? !choice->isChecked() : choice->text() != speech_.microphone)
            continue;
        speech_.microphone = choice->text();
        if (choice->isChecked())
            return true;
        bringIntoView(choice);
        clickOn(choice);
        return false;
    }
    exit_.close(QStringLiteral("no microphone is named '%1' (there are: '%2')")
                    .arg(speech_.microphone, names.join(QStringLiteral("', '"))));
    return false;
}

void MicrophoneWorker::choose()
{
    if (findShown(*dialog_, recordButton) != nullptr)
        return enter(Step::preparing);
    if (inStepMs() > pageLimitMs)
        return exit_.close(QStringLiteral("the dialog did not take the microphone"));
    if (chooseMicrophone())
        press(nextButton);
}

void MicrophoneWorker::prepare()
{
    if (speaker_ == nullptr)
        speaker_ = std::make_unique<SpeakerLink>(speech_.device, speech_.clip);
    if (speaker_->hasFailed() || inStepMs() > speakerLimitMs)
        return exit_.close(speaker_->errorText().isEmpty() ? QStringLiteral("the speech could not begin")
                                                           : speaker_->errorText());
    if (speaker_->isReady())
        enter(Step::pressing);
}

void MicrophoneWorker::pressRecord()
{
    const QWidget *button = findShown(*dialog_, recordButton);
    if (pressedMs_ > 0 && button != nullptr && !button->isEnabled())
        return enter(Step::recording);
    if (inStepMs() > pageLimitMs)
        return exit_.close(QStringLiteral("the dialog did not record"));
    if (press(recordButton))
        recordPressedMs_ = pressedMs_;
}

void MicrophoneWorker::speak()
{
    if (!hasSpoken_ && steadyNowMs() - recordPressedMs_ >= speakAfterMs) {
        hasSpoken_ = true;
        speaker_->speak();
    }
    if (speaker_->hasFailed())
        return exit_.awaitItsOwnEnd(speaker_->errorText());
    if (playBeganMs_ > 0) {
        // What was not spoken would be missed in the playback, and what is spoken now would be taken for it.
        if (!speaker_->hasFinished())
            return exit_.close(QStringLiteral("the sentence was not spoken in time"));
        recordEndedMs_ = playBeganMs_;
        return enter(Step::playing);
    }
    if (inStepMs() > jobLimitMs)
        exit_.close(QStringLiteral("the dialog did not end its recording"));
}

void MicrophoneWorker::play()
{
    const QWidget *next = findShown(*dialog_, nextButton);
    if (next != nullptr && next->isEnabled()) {
        playEndedMs_ = steadyNowMs();
        photographer_.take(dialog_, QStringLiteral("microphone-played"));
        return enter(Step::judging);
    }
    if (inStepMs() > jobLimitMs)
        exit_.close(QStringLiteral("the dialog did not end its playback"));
}

// Before the dialog ends: the question that follows must have an answer.
void MicrophoneWorker::judge()
{
    if (log_.listenedUpToMs() < playEndedMs_ + listenerDelayMs) {
        if (inStepMs() > listenerLimitMs)
            exit_.close(QStringLiteral("listener lost"));
        return;
    }
    const HeardRecording heard = measured();
    if (!heard.isFound && !heard.isSilent && !hasRepeated_)
        return listenAgain();
    heard_ = heard;
    // Neither the sentence nor surely another sound: whether the device or this machine's haste tore it nobody can tell.
    if (!heard.isFound && !heard.isSilent && heard.score > doubtfulScore)
        return exit_.close(QStringLiteral("not recognised"));
    if (const QString reason = whyNotMissing(heard); !reason.isEmpty())
        return exit_.close(reason);
    enter(Step::leaving);
}

// Why the sentence cannot be called missing; empty where it can, and where it was found.
QString MicrophoneWorker::whyNotMissing(const HeardRecording &heard) const
{
    if (heard.isFound)
        return {};
    if (!log_.hasListenedBetween(playBeganMs_, playEndedMs_))
        return QStringLiteral("listener lost");
    // A microphone that works always hears something; a monitor of silence is exactly silent.
    const bool isDead = !isMonitor(speech_.source) && log_.loudestBetween(playBeganMs_, playEndedMs_) <= digitalSilenceDbfs;
    if (isDead)
        return QStringLiteral("the capture source delivers nothing");
    if (volumes_ && !volumes_->complaint().isEmpty())
        return volumes_->complaint();
    return wasSpeechHeard() ? QString() : QStringLiteral("the sentence was not heard when it was spoken");
}

// What never sounded no microphone can have recorded: by the ear that judges the playback, as there is no other.
bool MicrophoneWorker::wasSpeechHeard() const
{
    const std::optional<HeardPlace> place = log_.bestPlaceBetween(recordPressedMs_, recordEndedMs_);
    return place && place->isFound;
}

// A busy machine may have torn the playback apart, as it would not a person's attention.
void MicrophoneWorker::listenAgain()
{
    if (!press(playButton)) {
        if (inStepMs() > listenerLimitMs)
            exit_.close(QStringLiteral("the dialog did not play again"));
        return;
    }
    hasRepeated_ = true;
    playBeganMs_ = steadyNowMs();
    enter(Step::repeating);
}

void MicrophoneWorker::leave()
{
    if (inStepMs() > pageLimitMs)
        return exit_.close(QStringLiteral("the dialog did not go on"));
    press(nextButton);
}

HeardRecording MicrophoneWorker::measured() const
{
    HeardRecording heard;
    heard.microphone = speech_.microphone;
    heard.spokenThrough = speech_.device;
    heard.isSilent = log_.loudestBetween(playBeganMs_, playEndedMs_) < HeardLog::audibleDbfs;
    measureLevels(heard);
    const std::optional<HeardPlace> place = log_.bestPlaceBetween(playBeganMs_, playEndedMs_);
    if (!place)
        return heard;
    heard.heardAtMs = place->startMs;
    heard.score = place->score;
    heard.isFound = place->isFound;
    heard.levelDbfs = place->levelDbfs;
    heard.isClipped = place->isClipped;
    if (place->isFound)
        heard.latencyMs = latencyTo(place->startMs);
    return heard;
}

void MicrophoneWorker::measureLevels(HeardRecording &heard) const
{
    double left = 0;
    double right = 0;
    double difference = 0;
    for (const MeteredMoment &moment : log_.momentsBetween(playBeganMs_, playEndedMs_)) {
        heard.peakDbfs = std::max(heard.peakDbfs, moment.peakDbfs);
        left += powerOf(moment.leftDbfs);
        right += powerOf(moment.rightDbfs);
        difference += powerOf(moment.differenceDbfs);
        for (qsizetype index = 0; index + 1 < moment.wave.size(); index += 2) {
            heard.lowest.append(std::clamp(moment.wave[index], -1.0, 1.0));
            heard.highest.append(std::clamp(moment.wave[index + 1], -1.0, 1.0));
        }
    }
    const double louder = std::max(left, right);
    const bool isOneSilent = decibelsOf(louder) - decibelsOf(std::min(left, right)) > silentChannelDb;
    heard.isMonoInStereo = !heard.isSilent && (isOneSilent || decibelsOf(louder) - decibelsOf(difference) > sameChannelsDb);
}

std::optional<double> MicrophoneWorker::latencyTo(qint64 startMs) const
{
    const std::optional<qint64> spokenMs = speaker_->startedMs();
    if (!spokenMs)
        return std::nullopt;
    return static_cast<double>((startMs - playBeganMs_) - (*spokenMs - recordPressedMs_));
}

// The page that plays begins by itself when it is shown: a timer would see it too late.
bool MicrophoneWorker::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShow = event->type() == QEvent::Show && !event->spontaneous();
    if (dialog_ && watched == dialog_ && event->type() == QEvent::Hide)
        photographer_.take(dialog_, QStringLiteral("end"));
    else if (isShow && watched->objectName() == QLatin1String(playButton) && playBeganMs_ == 0)
        playBeganMs_ = steadyNowMs();
    else if (isShow && watched->objectName() == QLatin1String(recordButton))
        QMetaObject::invokeMethod(
            this, [this] { photographer_.take(dialog_, QStringLiteral("microphone-record")); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace host
