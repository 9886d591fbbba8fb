// SPDX-License-Identifier: Apache-2.0
#include "host/gui/channel_dialog.h"

#include "host/gui/key_text.h"
#include "host/gui/mnemonics.h"
#include "host/gui/prompt_parts.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

namespace host {

namespace {

constexpr std::array<HeardSide, 4> offeredSides{HeardSide::left, HeardSide::right, HeardSide::both, HeardSide::nothing};

QString sideText(HeardSide side)
{
    switch (side) {
    case HeardSide::left:
        return hostText("SIDE_LEFT");
    case HeardSide::right:
        return hostText("SIDE_RIGHT");
    case HeardSide::both:
        return hostText("SIDE_BOTH");
    case HeardSide::nothing:
        break;
    }
    return hostText("SIDE_NOTHING");
}

} // namespace

QString channelWords(const ChannelCheck &check)
{
    switch (check.mapping) {
    case ChannelMapping::straight:
        return hostText("CHANNELS_STRAIGHT");
    case ChannelMapping::swapped:
        return hostText("CHANNELS_SWAPPED");
    case ChannelMapping::mixed:
        return hostText("CHANNELS_MIXED");
    case ChannelMapping::leftSilent:
        return hostText("CHANNELS_LEFT_SILENT");
    case ChannelMapping::rightSilent:
        return hostText("CHANNELS_RIGHT_SILENT");
    case ChannelMapping::notMeasurable:
        break;
    }
    return check.source.isEmpty() ? hostText("CHANNELS_UNHEARD")
                                  : hostText("CHANNELS_NOT_KNOWN").arg(shownReason(check.reason));
}

ChannelDialog::ChannelDialog(ChannelListening what, QWidget *parent)
    : QDialog(parent), what_(std::move(what)), digits_(drawnDigits())
{
    preparePrompt(*this, QStringLiteral("host_channels"));
    QVBoxLayout *layout = makePromptLayout(*this);
    addPromptTitle(*layout, hostText("CHANNELS_TITLE"), QStringLiteral("host_channels_title"));
    addPromptText(*layout, hostText("CHANNELS_TEXT").arg(what_.device), QStringLiteral("host_channels_text"));
    const QStringList texts = withMnemonics({hostText("CHANNELS_PLAY_FIRST"), hostText("CHANNELS_PLAY_SECOND"),
                                             hostText("PRECHECK_CLOSE"), hostText("CHANNELS_MEASURE").arg(what_.source)});
    layout->addWidget(makeSide(0, hostText("CHANNELS_FIRST"), texts[0]));
    layout->addWidget(makeSide(1, hostText("CHANNELS_SECOND"), texts[1]));
    result_ = addPromptText(*layout, hostText("CHANNELS_OPEN"), QStringLiteral("host_channels_result"));
    measure_ = new QPushButton(texts[3]);
    measure_->setObjectName(QStringLiteral("host_channels_measure"));
    measure_->setAccessibleName(hostText("CHANNELS_MEASURE").arg(what_.source));
    measure_->setVisible(!what_.source.isEmpty());
    auto *close = new QPushButton(texts[2]);
    close->setObjectName(QStringLiteral("host_channels_close"));
    close->setAccessibleName(hostText("PRECHECK_CLOSE"));
    auto *row = new QHBoxLayout;
    row->addWidget(measure_);
    row->addStretch();
    row->addWidget(close);
    layout->addLayout(row);
    for (QPushButton *button : {sides_[0].play, sides_[1].play, measure_, close})
        button->setAutoDefault(false);
    connect(measure_, &QPushButton::clicked, this, &ChannelDialog::measure);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    sides_[0].play->setFocus();
}

ChannelDialog::~ChannelDialog() = default;

QGroupBox *ChannelDialog::makeSide(std::size_t side, const QString &title, const QString &playText)
{
    auto *box = new QGroupBox(title);
    const QString name = side == 0 ? QStringLiteral("host_channels_first") : QStringLiteral("host_channels_second");
    box->setObjectName(name);
    auto *row = new QHBoxLayout(box);
    auto *button = new QPushButton(playText);
    button->setObjectName(name + QStringLiteral("_play"));
    button->setAccessibleName(hostText(side == 0 ? "CHANNELS_PLAY_FIRST" : "CHANNELS_PLAY_SECOND"));
    row->addWidget(button);
    sides_[side].play = button;
    for (std::size_t index = 0; index < offeredSides.size(); ++index) {
        auto *answer = new QRadioButton(sideText(offeredSides[index]));
        answer->setObjectName(name + u'_' + sideName(offeredSides[index]));
        answer->setEnabled(false); // nothing has been heard yet
        row->addWidget(answer);
        sides_[side].answers[index] = answer;
        connect(answer, &QRadioButton::toggled, this, &ChannelDialog::takeAnswers);
    }
    connect(button, &QPushButton::clicked, this, [this, side] { play(side); });
    return box;
}

void ChannelDialog::setBusy(bool isBusy)
{
    for (const Side &side : sides_)
        side.play->setEnabled(!isBusy);
    measure_->setEnabled(!isBusy);
}

void ChannelDialog::play(std::size_t side)
{
    setBusy(true);
    speaker_ = std::make_unique<SpeakerLink>(what_.device, clipFile(what_.clipsFolder, what_.language, digits_[side]),
                                             side == 0 ? QStringLiteral("left") : QStringLiteral("right"));
    // Later: what tells of its end must not be deleted by that.
    connect(
        speaker_.get(), &SpeakerLink::changed, this, [this, side] { followSpeaker(side); }, Qt::QueuedConnection);
    speaker_->speak();         // as soon as it is ready
    if (speaker_->hasFailed()) // told before anybody was connected
        QMetaObject::invokeMethod(
            this, [this, side] { followSpeaker(side); }, Qt::QueuedConnection);
}

void ChannelDialog::followSpeaker(std::size_t side)
{
    if (speaker_ == nullptr || (!speaker_->hasFinished() && !speaker_->hasFailed()))
        return;
    const bool hasFinished = speaker_->hasFinished();
    if (!hasFinished)
        result_->setText(hostText("CHANNELS_NOT_PLAYED").arg(speaker_->errorText()));
    speaker_.reset();
    setBusy(false);
    if (!hasFinished)
        return sides_[side].play->setFocus();
    for (QRadioButton *answer : sides_[side].answers)
        answer->setEnabled(true);
    if (!answerOf(side))
        sides_[side].answers[0]->setFocus();
}

std::optional<HeardSide> ChannelDialog::answerOf(std::size_t side) const
{
    for (std::size_t index = 0; index < offeredSides.size(); ++index) {
        if (sides_[side].answers[index]->isChecked())
            return offeredSides[index];
    }
    return std::nullopt;
}

void ChannelDialog::takeAnswers()
{
    const std::optional<HeardSide> left = answerOf(0);
    const std::optional<HeardSide> right = answerOf(1);
    if (!left || !right)
        return;
    check_ = answeredCheck(*left, *right);
    result_->setText(channelWords(*check_));
}

void ChannelDialog::measure()
{
    setBusy(true);
    result_->setText(hostText("CHANNELS_MEASURING").arg(what_.source));
    ear_ = std::make_unique<ChannelListener>(what_);
    connect(ear_.get(), &ChannelListener::finished, this, &ChannelDialog::takeMeasured, Qt::QueuedConnection);
    ear_->start();
}

void ChannelDialog::takeMeasured(const ChannelCheck &check)
{
    ear_.reset();
    setBusy(false);
    check_ = check;
    result_->setText(channelWords(check));
}

} // namespace host
