// SPDX-License-Identifier: Apache-2.0
#include "host/gui/result_panel.h"

#include "contract/result_codes.h"
#include "host/core/run_warning.h"
#include "host/core/verdict.h"
#include "host/gui/key_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr double verdictScale = 1.5;

QStyle::StandardPixmap iconOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::passed:
        return QStyle::SP_DialogApplyButton;
    case Verdict::failed:
        return QStyle::SP_MessageBoxCritical;
    default:
        return QStyle::SP_MessageBoxWarning;
    }
}

QFont enlarged(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * verdictScale);
    font.setBold(true);
    return font;
}

} // namespace

QString subjectOf(const RunRecord &record)
{
    const QString subject = QStringLiteral("%1: %2").arg(shownText(record.testNameKey), record.device.name);
    return record.microphone.isEmpty() ? subject : hostText("WITH_MICROPHONE").arg(subject, record.microphone);
}

QString verdictText(const RunRecord &record) { return hostText(verdictKey(verdictOf(record))); }

ResultPanel::ResultPanel(QWidget *parent)
    : QWidget(parent), icon_(new QLabel(this)), verdict_(new QLabel(this)), subject_(new QLabel(this)),
      messages_(new QListWidget(this))
{
    verdict_->setObjectName(QStringLiteral("host_result_verdict"));
    verdict_->setFont(enlarged(verdict_->font()));
    verdict_->setWordWrap(true);
    subject_->setObjectName(QStringLiteral("host_result_subject"));
    subject_->setTextFormat(Qt::PlainText);
    subject_->setWordWrap(true);
    messages_->setObjectName(QStringLiteral("host_result_messages"));
    messages_->setWordWrap(true);
    messages_->setSelectionMode(QAbstractItemView::SingleSelection);
    auto *head = new QHBoxLayout;
    head->addWidget(icon_);
    head->addWidget(verdict_, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(head);
    column->addWidget(subject_);
    column->addWidget(messages_, 1);
    retranslate();
}

void ResultPanel::showRunning()
{
    isRunning_ = true;
    retranslate();
}

void ResultPanel::showRun(const RunRecord &record)
{
    isRunning_ = false;
    record_ = record;
    retranslate();
}

void ResultPanel::retranslate()
{
    messages_->clear();
    messages_->setAccessibleName(hostText("MESSAGES"));
    const bool hasResult = record_.has_value() && !isRunning_;
    icon_->setVisible(hasResult);
    subject_->setVisible(hasResult);
    if (hasResult)
        showVerdict();
    else
        verdict_->setText(hostText(isRunning_ ? "TEST_IS_RUNNING" : "NO_RESULT_YET"));
    verdict_->setAccessibleName(hostText("RESULT") + QStringLiteral(": ") + verdict_->text());
    // Where nothing is listed one would not see that the keyboard is there.
    messages_->setFocusPolicy(messages_->count() > 0 ? Qt::StrongFocus : Qt::NoFocus);
}

void ResultPanel::showVerdict()
{
    const int side = verdict_->fontMetrics().height();
    icon_->setPixmap(style()->standardIcon(iconOf(verdictOf(*record_))).pixmap(side, side));
    verdict_->setText(verdictText(*record_));
    subject_->setText(subjectOf(*record_));
    const QList<RunReason> warnings = warningsOf(*record_);
    for (const RunReason &warning : warnings)
        messages_->addItem(new QListWidgetItem(style()->standardIcon(QStyle::SP_MessageBoxWarning), shownReason(warning)));
    if (!record_->reason.isEmpty())
        messages_->addItem(
            new QListWidgetItem(style()->standardIcon(QStyle::SP_MessageBoxInformation), shownReason(record_->reason)));
    for (const RunMessage &message : record_->messages)
        addMessage(message);
}

void ResultPanel::addMessage(const RunMessage &message)
{
    const bool isError = message.level == ostra::message_level::error;
    const QString kind = hostText(isError ? "LEVEL_ERROR" : "LEVEL_NOTE");
    const QIcon icon = style()->standardIcon(isError ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxInformation);
    const QStringList sentences = shownSentences(message.text);
    for (const QString &sentence : sentences)
        messages_->addItem(new QListWidgetItem(icon, QStringLiteral("%1: %2").arg(kind, sentence)));
}

} // namespace host
