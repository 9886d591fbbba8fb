// SPDX-License-Identifier: Apache-2.0
#include "host/operator/playback_worker.h"

#include "host/core/capture_source.h"
#include "host/operator/real_input.h"
#include "host/operator/window_photographer.h"

#include <QChildEvent>
#include <QMovie>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace host {

namespace {

constexpr qsizetype sequenceLength = 3;

constexpr auto closeButton = "audio_playback_test_header_close";
constexpr auto failButton = "audio_playback_test_fail_button";
constexpr auto repeatButton = "audio_playback_test_numpad_repeat_button";
constexpr auto secondMessage = "audio_playback_test_second_audio_sequence_message";
constexpr auto thirdTyped = "audio_playback_test_third_input_set";
constexpr auto unpressedDigit = "audio_playback_test_numpad_button_unpressed_%1";

/// The listener tells a sound up to 2.4 s after its end.
constexpr qint64 listenerDelayMs = 2'500;
/// A sequence begins a second after its dialog and takes 7 s; a slow device may take its time to open.
constexpr qint64 waitLimitMs = 30'000;
constexpr qint64 playLimitMs = 90'000;
constexpr qint64 listenerLimitMs = 20'000;
constexpr qint64 answerLimitMs = 10'000;
/// The clocks of dialog and capture agree to a buffer or two.
constexpr qint64 clockToleranceMs = 200;
constexpr qint64 longestLatencyMs = 2'000;
/// What the listener calls the level of zeros.
constexpr double digitalSilenceDbfs = -120.0;

/// How well the digits of a play were heard: digits, sounds of any kind, loudest level.
std::tuple<qsizetype, qsizetype, double> clarityOf(const QList<HeardDigit> &rows)
{
    std::tuple<qsizetype, qsizetype, double> clarity{0, 0, -std::numeric_limits<double>::infinity()};
    auto &[digitCount, soundCount, levelDbfs] = clarity;
    for (const HeardDigit &row : rows) {
        digitCount += row.heard ? 1 : 0;
        soundCount += row.playedAtMs >= 0 ? 1 : 0;
        levelDbfs = std::max(levelDbfs, row.levelDbfs);
    }
    return clarity;
}

} // namespace

PlaybackWorker::PlaybackWorker(QWidget *dialog, const HeardLog &log, WindowPhotographer &photographer, int mistypedSequences,
                               qint64 listenFromMs, const QStringList &endpoints)
    : dialog_(dialog), exit_(dialog, closeButton), log_(log), photographer_(photographer),
      mistypedSequences_(mistypedSequences), stepStartMs_(steadyNowMs()), listenFromMs_(listenFromMs),
      source_(endpoints.value(1)), volumes_(endpoints)
{
    dialog->installEventFilter(this);
    for (const char *name : {thirdTyped, secondMessage}) {
        if (QWidget *widget = find(name))
            widget->installEventFilter(this);
    }
    photographer_.take(dialog, QStringLiteral("playback-shown"));
}

void PlaybackWorker::advance(bool isListenerLost)
{
    if (!dialog_ || !dialog_->isVisible())
        return;
    noteMovie();
    if (isListenerLost && !exit_.hasBegun())
        return exit_.awaitItsOwnEnd(QStringLiteral("listener lost"));
    if (sequence_ == 1 && !exit_.isClosing() && isShown(secondMessage))
        return beginSecondSequence();
    if (exit_.hasBegun())
        return exit_.advance();
    switch (step_) {
    case Step::waiting:
    case Step::playing:
        return wait();
    case Step::deciding:
        return decide();
    case Step::typing:
        return type();
    case Step::answered:
        if (inStepMs() > answerLimitMs)
            exit_.close(QStringLiteral("the dialog did not take the answer"));
        return;
    }
}

void PlaybackWorker::enter(Step step)
{
    step_ = step;
    stepStartMs_ = steadyNowMs();
}

QWidget *PlaybackWorker::find(const char *name) const { return dialog_->findChild<QWidget *>(QLatin1String(name)); }

bool PlaybackWorker::isShown(const char *name) const
{
    const QWidget *widget = find(name);
    return widget != nullptr && widget->isVisible();
}

bool PlaybackWorker::isRepeatEnabled() const
{
    const QWidget *button = find(repeatButton);
    return button != nullptr && button->isEnabled();
}

// The button of a digit that has been typed gives way to its pressed twin.
bool PlaybackWorker::isTyped(int digit) const
{
    return !isShown(QString::fromLatin1(unpressedDigit).arg(digit).toLatin1().constData());
}

void PlaybackWorker::beginSecondSequence()
{
    sequence_ = 2;
    hasRepeated_ = false;
    exit_.awaitNoLonger();
    listenFromMs_ = secondShownMs_ > 0 ? secondShownMs_ : steadyNowMs();
    enter(Step::waiting);
}

void PlaybackWorker::wait()
{
    const bool isIdle = isRepeatEnabled();
    if (!isIdle)
        volumes_.look();
    if (step_ == Step::waiting && !isIdle) {
        enter(Step::playing);
    } else if (step_ == Step::playing && isIdle) {
        playEndMs_ = steadyNowMs();
        plays_.append({listenFromMs_, playEndMs_});
        volumes_.lookAtSources();
        enter(Step::deciding);
    } else if (inStepMs() > (step_ == Step::waiting ? waitLimitMs : playLimitMs)) {
        exit_.close(QStringLiteral("the dialog did not play its sequence"));
    }
}

QList<HeardEvent> PlaybackWorker::digitsOfPlay() const
{
    QList<HeardEvent> digits = log_.soundsBetween(listenFromMs_, playEndMs_);
    digits.removeIf([](const HeardEvent &event) { return !event.digit; });
    return digits;
}

void PlaybackWorker::decide()
{
    const QList<HeardEvent> digits = digitsOfPlay();
    QList<int> values;
    for (const HeardEvent &event : digits) {
        if (!values.contains(*event.digit)) // the dialog never repeats a digit
            values.append(*event.digit);
    }
    if (digits.size() == sequenceLength && values.size() == sequenceLength) {
        noteRows(rowsOfPlay());
        answer_ = values;
        typedCount_ = 0;
        return enter(Step::typing);
    }
    if (log_.listenedUpToMs() >= playEndMs_ + listenerDelayMs)
        return hasRepeated_ ? giveUp() : listenAgain();
    if (inStepMs() > listenerLimitMs)
        exit_.close(QStringLiteral("listener lost"));
}

void PlaybackWorker::listenAgain()
{
    noteBetterRows();
    if (!clickOn(find(repeatButton))) {
        if (inStepMs() > listenerLimitMs)
            exit_.close(QStringLiteral("the dialog could not be answered"));
        return;
    }
    hasRepeated_ = true;
    listenFromMs_ = steadyNowMs();
    enter(Step::waiting);
}

void PlaybackWorker::giveUp()
{
    noteBetterRows();
    if (const QString reason = whyNotSilent(); !reason.isEmpty())
        return exit_.close(reason);
    if (clickOn(find(failButton)))
        enter(Step::answered);
    else if (inStepMs() > listenerLimitMs)
        exit_.close(QStringLiteral("the dialog could not be answered"));
}

// Why the device cannot be called silent; empty where it can.
QString PlaybackWorker::whyNotSilent() const
{
    for (const Play &play : plays_) {
        if (!log_.hasListenedBetween(play.fromMs, play.toMs))
            return QStringLiteral("listener lost");
    }
    const bool wasHeard = std::any_of(plays_.begin(), plays_.end(), [this](const Play &play) {
        return log_.loudestBetween(play.fromMs, play.toMs) >= HeardLog::audibleDbfs;
    });
    if (wasHeard)
        return QStringLiteral("not recognised");
    // A microphone that works always hears something; a monitor of silence is exactly silent.
    const bool isDead = !isMonitor(source_) && std::all_of(plays_.begin(), plays_.end(), [this](const Play &play) {
        return log_.loudestBetween(play.fromMs, play.toMs) <= digitalSilenceDbfs;
    });
    if (isDead)
        return QStringLiteral("the capture source delivers nothing");
    return volumes_.complaint();
}

void PlaybackWorker::type()
{
    if (typedCount_ > 0 && !isTyped(digitToType(typedCount_ - 1))) {
        if (inStepMs() > answerLimitMs)
            exit_.close(QStringLiteral("the keypad does not answer"));
        return;
    }
    typeNext();
}

void PlaybackWorker::typeNext()
{
    const int digit = digitToType(typedCount_);
    const bool isByMouse = typedCount_ % 2 == 0;
    const QString button = QString::fromLatin1(unpressedDigit).arg(digit);
    if (!(isByMouse ? clickOn(dialog_->findChild<QWidget *>(button)) : pressDigitKey(dialog_, digit))) {
        if (inStepMs() > answerLimitMs)
            exit_.close(QStringLiteral("the keypad does not answer"));
        return;
    }
    const qsizetype row = rows_.size() - sequenceLength + typedCount_;
    rows_[row].typed = digit;
    ++typedCount_;
    enter(typedCount_ < sequenceLength ? Step::typing : Step::answered);
}

// The wrong digit is none of the three: every digit can be typed once only.
int PlaybackWorker::digitToType(int position) const
{
    if (sequence_ > mistypedSequences_ || position + 1 < sequenceLength)
        return answer_.at(position);
    int wrong = 0;
    while (answer_.contains(wrong))
        ++wrong;
    return wrong;
}

// The three loudest where noises came between, in the order of their beginning; digits before other sounds.
QList<HeardEvent> PlaybackWorker::loudestOfPlay() const
{
    QList<HeardEvent> sounds = log_.soundsBetween(listenFromMs_, playEndMs_);
    std::stable_sort(sounds.begin(), sounds.end(), [](const HeardEvent &left, const HeardEvent &right) {
        return std::pair(left.digit.has_value(), left.levelDbfs) > std::pair(right.digit.has_value(), right.levelDbfs);
    });
    sounds.resize(std::min(sounds.size(), sequenceLength));
    std::sort(sounds.begin(), sounds.end(),
              [](const HeardEvent &left, const HeardEvent &right) { return left.startMs < right.startMs; });
    return sounds;
}

QList<HeardDigit> PlaybackWorker::rowsOfPlay() const
{
    QList<HeardDigit> rows;
    const QList<HeardEvent> sounds = loudestOfPlay();
    for (int position = 1; position <= sequenceLength; ++position) {
        HeardDigit row;
        row.sequence = sequence_;
        row.position = position;
        row.playedAtMs = -1;
        row.latencyMs = -1;
        row.levelDbfs = log_.loudestBetween(listenFromMs_, playEndMs_);
        if (position <= sounds.size()) {
            const HeardEvent &sound = sounds.at(position - 1);
            row.playedAtMs = sound.startMs;
            row.heard = sound.digit;
            row.score = sound.score;
            row.margin = sound.margin;
            if (sound.measured)
                row.measured = *sound.measured;
            row.latencyMs = latencyOf(sound.startMs);
            row.levelDbfs = sound.levelDbfs;
            row.clipped = sound.isClipped;
        }
        rows.append(row);
    }
    return rows;
}

void PlaybackWorker::noteRows(const QList<HeardDigit> &rows)
{
    rows_.removeIf([this](const HeardDigit &row) { return row.sequence == sequence_; });
    rows_.append(rows);
}

void PlaybackWorker::noteUnfinishedPlay()
{
    if (step_ != Step::playing && step_ != Step::deciding)
        return;
    if (step_ == Step::playing)
        playEndMs_ = steadyNowMs();
    QList<HeardDigit> rows = rowsOfPlay();
    rows.removeIf([](const HeardDigit &row) { return row.playedAtMs < 0; });
    const bool hasRows =
        std::any_of(rows_.begin(), rows_.end(), [this](const HeardDigit &row) { return row.sequence == sequence_; });
    if (!hasRows)
        noteRows(rows);
}

// A repetition that was heard worse leaves the rows of the play before it.
void PlaybackWorker::noteBetterRows()
{
    QList<HeardDigit> before = rows_;
    before.removeIf([this](const HeardDigit &row) { return row.sequence != sequence_; });
    const QList<HeardDigit> rows = rowsOfPlay();
    if (before.isEmpty() || clarityOf(rows) >= clarityOf(before))
        noteRows(rows);
}

double PlaybackWorker::latencyOf(qint64 startMs) const
{
    double latency = -1;
    for (const qint64 movieStart : movieStarts_) {
        const qint64 delay = startMs - movieStart;
        if (delay >= -clockToleranceMs && delay <= longestLatencyMs)
            latency = static_cast<double>(std::max<qint64>(0, delay));
    }
    return latency;
}

// What kind of child it was can be told only once it is complete.
void PlaybackWorker::noteMovie()
{
    if (qobject_cast<QMovie *>(newestChild_.object) != nullptr)
        movieStarts_.append(newestChild_.bornMs);
    newestChild_ = {};
}

// The dialog makes its "playing" animation anew, as a child of itself, right before each digit, and holds the thread then: a
// timer would see it a second too late.
bool PlaybackWorker::eventFilter(QObject *watched, QEvent *event)
{
    if (dialog_ && watched == dialog_ && event->type() == QEvent::ChildAdded)
        newestChild_ = {steadyNowMs(), static_cast<QChildEvent *>(event)->child()};
    else if (dialog_ && watched == dialog_ && event->type() == QEvent::Hide)
        photographer_.take(dialog_, QStringLiteral("end"));
    else if (dialog_ && watched != dialog_ && event->type() == QEvent::Show)
        noteShown(watched);
    return QObject::eventFilter(watched, event);
}

// Noted at once: the next look may come after the second sequence has begun.
void PlaybackWorker::noteShown(const QObject *widget)
{
    if (widget->objectName() == QLatin1String(secondMessage))
        secondShownMs_ = steadyNowMs();
    else
        photographer_.take(dialog_, QStringLiteral("sequence-%1-typed").arg(sequence_));
}

} // namespace host
