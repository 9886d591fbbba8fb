// SPDX-License-Identifier: Apache-2.0
#include "host/gui/level_window.h"

#include "host/gui/key_text.h"
#include "host/gui/level_bar.h"
#include "host/gui/level_words.h"
#include "host/gui/wave_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

namespace {

constexpr auto dialogName = "InteractionDialog";
constexpr auto playButton = "microphone_test_play_button";

} // namespace

LevelWindow::LevelWindow(QWidget *mainWindow, QString source)
    : QWidget(mainWindow, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint |
                              Qt::WindowDoesNotAcceptFocus),
      source_(std::move(source)), title_(new QLabel(this)), bar_(new LevelBar(this)), words_(new QLabel(this)),
      waveView_(new WaveView(this))
{
    setObjectName(QStringLiteral("host_level_window"));
    bar_->setObjectName(QStringLiteral("host_level_bar"));
    words_->setObjectName(QStringLiteral("host_level_words"));
    waveView_->setObjectName(QStringLiteral("host_level_wave"));
    setAttribute(Qt::WA_ShowWithoutActivating); // the keyboard stays with the dialog
    setAttribute(Qt::WA_QuitOnClose, false);
    title_->setTextFormat(Qt::PlainText); // a source may be named like a tag
    auto *column = new QVBoxLayout(this);
    for (QWidget *widget : std::initializer_list<QWidget *>{title_, bar_, words_, waveView_})
        column->addWidget(widget);
    retranslate();
    mainWindow->installEventFilter(this);
}

void LevelWindow::setSource(const QString &source)
{
    source_ = source;
    retranslate();
}

void LevelWindow::retranslate()
{
    setWindowTitle(hostText("METER_TITLE"));
    title_->setText(hostText("METER_SOURCE").arg(source_));
    bar_->setAccessibleName(hostText("METER_TITLE"));
    waveView_->setAccessibleName(hostText("METER_WAVE"));
    words_->setText(saidMs_ == 0 ? hostText("METER_NO_DATA") : words_->text());
}

// The main window is told when a dialog locks or frees it; the dialog itself is up only after that.
bool LevelWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
        QTimer::singleShot(0, this, &LevelWindow::followDialog);
    return QWidget::eventFilter(watched, event);
}

void LevelWindow::followDialog()
{
    QWidget *dialog = QApplication::activeModalWidget();
    const bool isWanted = !source_.isEmpty() && dialog != nullptr && dialog->objectName() == QLatin1String(dialogName);
    if (isWanted && dialog->windowHandle() != nullptr) {
        dialog_ = dialog;
        placeBeside(*dialog);
    } else {
        hide();
    }
}

void LevelWindow::placeBeside(const QWidget &dialog)
{
    winId();
    windowHandle()->setTransientParent(dialog.windowHandle());
    adjustSize();
    const QRect room = dialog.screen()->availableGeometry();
    const QRect taken = dialog.frameGeometry();
    const int margin = 2 * fontMetrics().height(); // room for the title bar, whose height is known too late
    const bool fitsBelow = taken.bottom() + margin + height() <= room.bottom();
    const int top = fitsBelow ? taken.bottom() + margin : taken.top() - margin - height();
    move(std::clamp(taken.left(), room.left(), std::max(room.left(), room.right() - width())), std::max(room.top(), top));
    show();
    windowHandle()->setTransientParent(dialog.windowHandle()); // a shown tool window is given its parent's window again
    raise();
}

void LevelWindow::beginRun()
{
    wave_.clear();
    waveView_->setWave({});
    wasPlaying_ = false;
    saidMs_ = 0;
    powerSum_ = 0;
    momentCount_ = 0;
    peakDbfs_ = -120;
    bar_->setLevels(-120, -120);
    retranslate();
}

// The button is locked while it plays.
bool LevelWindow::isPlaying() const
{
    const auto *button = dialog_ ? dialog_->findChild<QWidget *>(QLatin1String(playButton)) : nullptr;
    return button != nullptr && button->isVisible() && !button->isEnabled();
}

void LevelWindow::take(const MeteredMoment &moment)
{
    bar_->setLevels(moment.rmsDbfs, moment.peakDbfs);
    collectWords(moment);
    const bool isNowPlaying = isPlaying();
    if (isNowPlaying && !wasPlaying_)
        wave_.clear(); // the last of several
    wasPlaying_ = isNowPlaying;
    if (!isNowPlaying)
        return;
    wave_.append(moment.wave);
    waveView_->setWave(wave_);
}

void LevelWindow::collectWords(const MeteredMoment &moment)
{
    powerSum_ += std::pow(10.0, moment.rmsDbfs / 10);
    ++momentCount_;
    peakDbfs_ = std::max(peakDbfs_, moment.peakDbfs);
    if (saidMs_ != 0 && moment.endMs - saidMs_ < wordsIntervalMs)
        return;
    saidMs_ = moment.endMs;
    sayWords();
}

void LevelWindow::sayWords()
{
    const QString words = levelWords(10 * std::log10(powerSum_ / momentCount_), peakDbfs_);
    words_->setText(words);
    bar_->setAccessibleDescription(words);
    powerSum_ = 0;
    momentCount_ = 0;
    peakDbfs_ = -120;
}

void LevelWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void LevelWindow::closeEvent(QCloseEvent *event) { event->ignore(); }

} // namespace host
