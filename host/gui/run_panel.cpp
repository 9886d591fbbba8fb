// SPDX-License-Identifier: Apache-2.0
#include "host/gui/run_panel.h"

#include "host/gui/key_text.h"
#include "host/gui/run_keys.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace host {

namespace {

QLabel *makeText(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

RunPanel::RunPanel(QList<OfferedTest> tests, QWidget *parent)
    : QGroupBox(parent), tests_(std::move(tests)), list_(new QListWidget(this)),
      description_(makeText(QStringLiteral("host_test_description"), this)), run_(new QPushButton(this)),
      stop_(new QPushButton(this)), progress_(new QProgressBar(this)),
      progressText_(makeText(QStringLiteral("host_progress_text"), this))
{
    list_->setObjectName(QStringLiteral("host_tests"));
    run_->setObjectName(QStringLiteral("host_run"));
    stop_->setObjectName(QStringLiteral("host_stop"));
    progress_->setObjectName(QStringLiteral("host_progress"));
    progress_->setRange(0, 100);
    progress_->setValue(0);
    // Beside a verdict it would tell of a run that has not begun: not every test reports how far it is.
    QSizePolicy policy = progress_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(policy);
    progress_->hide();
    for (qsizetype index = 0; index < tests_.size(); ++index)
        list_->addItem(QString());
    list_->setCurrentRow(0);
    list_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    layOut();
    connect(list_, &QListWidget::currentRowChanged, this, &RunPanel::showDescription);
    connect(run_, &QPushButton::clicked, this, &RunPanel::runPressed);
    connect(stop_, &QPushButton::clicked, this, &RunPanel::stopPressed);
    enableButtons();
}

void RunPanel::layOut()
{
    constexpr int buttonWidthInLetters = 14;
    for (QPushButton *button : {run_, stop_})
        button->setMinimumWidth(buttonWidthInLetters * fontMetrics().averageCharWidth());
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(run_);
    buttons->addWidget(stop_);
    buttons->addStretch();
    auto *column = new QVBoxLayout(this);
    column->addWidget(list_);
    column->addWidget(description_);
    column->addStretch(1);
    column->addLayout(buttons);
    column->addWidget(progress_);
    column->addWidget(progressText_);
}

int RunPanel::chosen() const { return list_->currentRow(); }

void RunPanel::choose(qsizetype test) { list_->setCurrentRow(static_cast<int>(test)); }

void RunPanel::setRunning(bool isRunning)
{
    isRunning_ = isRunning;
    isStopping_ = false;
    progress_->setVisible(isRunning);
    if (isRunning)
        showProgress(0, {});
    enableButtons();
}

void RunPanel::setStopping()
{
    isStopping_ = true;
    enableButtons();
}

void RunPanel::setCanRun(bool canRun)
{
    canRun_ = canRun;
    enableButtons();
}

// The keyboard goes over from the button that is locked to the other one; left to itself it would go on to the next widget.
void RunPanel::enableButtons()
{
    const QWidget *keyboard = window()->focusWidget();
    QPushButton *other = isRunning_ ? stop_ : run_;
    const bool goesOver = keyboard == (isRunning_ ? run_ : stop_);
    if (goesOver) {
        other->setEnabled(true);
        other->setFocus();
    }
    run_->setEnabled(canRun_ && !isRunning_);
    stop_->setEnabled(isRunning_ && !isStopping_);
    list_->setEnabled(!isRunning_);
}

void RunPanel::showProgress(std::uint32_t percent, const QString &text)
{
    progressKey_ = text;
    progress_->setValue(static_cast<int>(percent));
    progressText_->setText(shownText(text));
}

void RunPanel::showDescription()
{
    const int test = chosen();
    description_->setText(test >= 0 ? shownSentences(tests_[test].descriptionKey).join(u'\n') : QString());
    description_->setAccessibleName(hostText("TEST_DESCRIPTION") + QStringLiteral(": ") + description_->text());
}

void RunPanel::retranslate()
{
    setTitle(hostText("TESTS"));
    list_->setAccessibleName(hostText("TESTS"));
    for (int row = 0; row < list_->count(); ++row)
        list_->item(row)->setText(shownText(tests_[row].nameKey));
    list_->setFixedHeight(list_->sizeHintForRow(0) * list_->count() + 2 * list_->frameWidth());
    run_->setAccessibleName(hostText("RUN_TEST"));
    run_->setToolTip(hostText("RUN_TEST_HINT").arg(RunKeys::runKeys()));
    stop_->setAccessibleName(hostText("STOP_TEST"));
    stop_->setToolTip(hostText("STOP_TEST_HINT").arg(RunKeys::stopKeys()));
    progress_->setAccessibleName(hostText("PROGRESS"));
    progressText_->setText(shownText(progressKey_));
    showDescription();
}

} // namespace host
