// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/channel_check.h"
#include "host/operator/listener_link.h"
#include "host/operator/speaker_link.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <array>
#include <chrono>
#include <memory>

namespace host {

/// How long each step of a check may take until it is given up.
struct ChannelLimits {
    /// For a device or a source: the sound library waits 30 s for a sound server that does not answer.
    std::chrono::milliseconds opening{35'000};
    /// Twenty times a clip, which has a second: no buffer on the way holds that much.
    std::chrono::milliseconds speech{20'000};
    /// The listener tells a digit up to 2.4 s after its end.
    std::chrono::milliseconds hearing{20'000};
};

struct ChannelListening {
    QString device;      ///< output to check, as people see it
    QString source;      ///< capture source that hears it
    QString clipsFolder; ///< holds one folder of ten clips a language
    QString language;
    ChannelLimits limits = {};
};

/// Two different digits.
std::array<int, 2> drawnDigits();

/// File of a digit's clip.
QString clipFile(const QString &clipsFolder, const QString &language, int digit);

/// Speaks one digit on the left channel of a device and another one on the right, at the volume that there is, and measures at
/// a capture source on which side each arrives. A side is called silent only when it was so twice: the first sound may get lost
/// in a device that has to wake up. Both happen in processes of their own. GUI thread only; takes some ten seconds, twenty with
/// a side that is silent, and ends by itself whatever happens.
class ChannelListener : public QObject {
    Q_OBJECT

public:
    explicit ChannelListener(ChannelListening what, QObject *parent = nullptr);
    ~ChannelListener() override; ///< ends both processes

    void start();

signals:
    /// Once.
    void finished(const host::ChannelCheck &check);

private:
    enum class Step { starting, opening, speaking, hearing, over };

    void advance();
    void speakNext();
    void hear();
    void judgeSide();
    void judgeBoth();
    void enter(Step step);
    bool takesLongerThan(std::chrono::milliseconds limit) const;
    void end(ChannelCheck check);
    void giveUp(const QString &reason);

    ChannelListening what_;
    std::array<int, 2> digits_;
    std::size_t side_ = 0;    ///< 0 left, 1 right
    bool isRepeated_ = false; ///< the side is spoken for the second time
    ListenerLink listener_;
    std::unique_ptr<SpeakerLink> speaker_;
    ChannelEvidence evidence_;
    QTimer timer_;
    Step step_ = Step::starting;
    qint64 stepStartMs_ = 0;
    qint64 spokenMs_ = 0;
};

} // namespace host
