// SPDX-License-Identifier: Apache-2.0
#include "host/operator/channel_listener.h"

#include "host/core/capture_source.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr std::chrono::milliseconds lookInterval{50};
/// The listener tells a digit up to 2.4 s after its end, and a sound server works a while behind.
constexpr qint64 listenerDelayMs = 3'500;
/// A capture may work that much ahead of what is played.
constexpr qint64 aheadMs = 300;

} // namespace

std::array<int, 2> drawnDigits()
{
    constexpr int count = 10;
    const int first = QRandomGenerator::global()->bounded(count);
    return {first, (first + 1 + QRandomGenerator::global()->bounded(count - 1)) % count};
}

QString clipFile(const QString &clipsFolder, const QString &language, int digit)
{
    return QStringLiteral("%1/%2/%3_%2.wav").arg(clipsFolder, language, QString::number(digit));
}

ChannelListener::ChannelListener(ChannelListening what, QObject *parent)
    : QObject(parent), what_(std::move(what)), digits_(drawnDigits())
{
    evidence_.isMonitor = isMonitor(what_.source);
    timer_.setInterval(lookInterval);
    connect(&timer_, &QTimer::timeout, this, &ChannelListener::advance);
}

ChannelListener::~ChannelListener() = default;

void ChannelListener::start()
{
    enter(Step::starting);
    listener_.launch({QStringLiteral("--source"), what_.source, QStringLiteral("--clips"), what_.clipsFolder,
                      QStringLiteral("--language"), what_.language, QStringLiteral("--meter")});
    timer_.start();
}

void ChannelListener::enter(Step step)
{
    step_ = step;
    stepStartMs_ = steadyNowMs();
}

bool ChannelListener::takesLongerThan(std::chrono::milliseconds limit) const
{
    return steadyNowMs() - stepStartMs_ > limit.count();
}

void ChannelListener::advance()
{
    if (listener_.isLost())
        return giveUp(listener_.errorText().isEmpty() ? QStringLiteral("listener lost") : listener_.errorText());
    if (speaker_ != nullptr && speaker_->hasFailed())
        return giveUp(speaker_->errorText());
    switch (step_) {
    case Step::starting:
        if (listener_.isReady())
            speakNext();
        else if (takesLongerThan(what_.limits.opening))
            giveUp(QStringLiteral("the source could not be listened to"));
        return;
    case Step::opening:
        if (speaker_->isReady()) {
            speaker_->speak();
            spokenMs_ = steadyNowMs();
            enter(Step::speaking);
        } else if (takesLongerThan(what_.limits.opening)) {
            giveUp(QStringLiteral("the device could not be opened"));
        }
        return;
    case Step::speaking:
        if (speaker_->hasFinished())
            enter(Step::hearing);
        else if (takesLongerThan(what_.limits.speech))
            giveUp(QStringLiteral("the device did not play"));
        return;
    case Step::hearing:
        return hear();
    case Step::over:
        return;
    }
}

void ChannelListener::speakNext()
{
    speaker_ = std::make_unique<SpeakerLink>(what_.device, clipFile(what_.clipsFolder, what_.language, digits_[side_]),
                                             side_ == 0 ? QStringLiteral("left") : QStringLiteral("right"));
    enter(Step::opening);
}

void ChannelListener::hear()
{
    if (listener_.log().listenedUpToMs() >= stepStartMs_ + listenerDelayMs)
        judgeSide();
    else if (takesLongerThan(what_.limits.hearing))
        giveUp(QStringLiteral("listener lost"));
}

// What is not recognised may be soft, or hidden by a noise: how loud it was at most decides later whether it was silence.
void ChannelListener::judgeSide()
{
    const HeardLog &log = listener_.log();
    SideEvidence side; // of this attempt alone: an earlier one was silent
    const QList<HeardEvent> sounds = log.soundsBetween(spokenMs_ - aheadMs, stepStartMs_);
    const auto digit = std::find_if(sounds.begin(), sounds.end(), [this](const HeardEvent &sound) {
        return sound.digit == digits_[side_] && sound.measured != nullptr && sound.measured->channelDbfs.size() == 2;
    });
    if (digit != sounds.end())
        side.digit = SideLevels{digit->measured->channelDbfs[0], digit->measured->channelDbfs[1]};
    const QList<MeteredMoment> moments = log.momentsBetween(spokenMs_, stepStartMs_);
    if (!side.digit && (moments.isEmpty() || !log.hasListenedBetween(spokenMs_, stepStartMs_)))
        return giveUp(QStringLiteral("the source delivered no sound"));
    for (const MeteredMoment &moment : moments)
        side.loudestDbfs = std::max({side.loudestDbfs, moment.leftDbfs, moment.rightDbfs});
    (side_ == 0 ? evidence_.left : evidence_.right) = side;
    if (isRepeated_ || ++side_ == digits_.size())
        return judgeBoth();
    speakNext();
}

// Only silence is tried again: whatever was heard stands as it is.
void ChannelListener::judgeBoth()
{
    evidence_.sourceChannelCount = listener_.sourceChannelCount();
    const ChannelCheck check = judgeChannels(evidence_);
    const std::optional<std::size_t> silent = silentSide(check.mapping);
    if (!silent || isRepeated_)
        return end(check);
    isRepeated_ = true;
    side_ = *silent;
    speakNext();
}

void ChannelListener::end(ChannelCheck check)
{
    timer_.stop();
    enter(Step::over);
    check.source = what_.source;
    emit finished(check);
}

void ChannelListener::giveUp(const QString &reason)
{
    if (speaker_ != nullptr && !speaker_->hasFinished())
        speaker_->kill(); // it had its time
    ChannelCheck check;
    check.reason = reason;
    end(check);
}

} // namespace host
