// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/channel_listener.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <memory>
#include <optional>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace host {

/// Plays one digit on the left channel alone and another one on the right, as often as wanted and at the volume that there is,
/// and asks where each was heard; which side plays it does not tell. A digit that was not heard is spoken once more before its
/// side is called silent. Where a source is listened to it can measure instead.
class ChannelDialog : public QDialog {
    Q_OBJECT

public:
    /// \param what with an empty source nothing can be measured
    explicit ChannelDialog(ChannelListening what, QWidget *parent = nullptr);
    ~ChannelDialog() override;

    /// What the last complete answer or measurement came to; nothing without one.
    const std::optional<ChannelCheck> &check() const noexcept { return check_; }

private:
    struct Side {
        QPushButton *play = nullptr;
        std::array<QRadioButton *, 4> answers{};
        int playCount = 0; ///< how often it was played to its end
    };

    QGroupBox *makeSide(std::size_t side, const QString &title, const QString &playText);
    void play(std::size_t side);
    void followSpeaker();
    void giveUpPlaying();
    void notePlayed();
    void noteNotPlayed(const QString &words);
    void playOnceMore(std::size_t side);
    void takeAnswers();
    std::optional<HeardSide> answerOf(std::size_t side) const;
    void forgetAnswer(std::size_t side);
    void measure();
    void takeMeasured(const ChannelCheck &check);
    void setBusy(bool isBusy);

    ChannelListening what_;
    std::array<int, 2> digits_;
    std::array<Side, 2> sides_;
    QLabel *result_ = nullptr;
    QPushButton *measure_ = nullptr;
    std::unique_ptr<SpeakerLink> speaker_;
    std::size_t playing_ = 0; ///< side of the speaker's digit
    QTimer limit_;            ///< the speaker's
    std::unique_ptr<ChannelListener> ear_;
    std::optional<ChannelCheck> check_;
};

/// What a check came to, in the language in force.
QString channelWords(const ChannelCheck &check);

} // namespace host
