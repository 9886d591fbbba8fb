// SPDX-License-Identifier: Apache-2.0
#include "host/gui/run_bar.h"

#include "host/gui/accessible_roles.h"
#include "host/gui/event_menu.h"
#include "host/gui/key_text.h"
#include "host/gui/mnemonics.h"
#include "host/gui/run_keys.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace host {

RunBar::RunBar(QWidget *mainWindow, bool hasEvents)
    : QWidget(mainWindow, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint),
      title_(new QLabel(this)), stop_(new QPushButton(this))
{
    installAccessibleRoles();
    setObjectName(QStringLiteral("host_run_bar"));
    setAttribute(Qt::WA_ShowWithoutActivating); // the keyboard stays with the dialog
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *row = new QHBoxLayout(this);
    row->addWidget(title_);
    row->addWidget(stop_);
    stop_->setObjectName(QStringLiteral("host_run_bar_stop"));
    connect(stop_, &QPushButton::clicked, this, &RunBar::stopPressed);
    if (hasEvents)
        addEvents();
    retranslate();
    mainWindow->installEventFilter(this);
}

void RunBar::addEvents()
{
    menu_ = new QMenu(this);
    events_ = new QPushButton(this);
    events_->setObjectName(QStringLiteral("host_run_bar_events"));
    events_->setMenu(menu_);
    layout()->addWidget(events_);
    fillEventMenu(*menu_, this, [this](int bit) { emit eventChosen(bit); });
}

void RunBar::retranslate()
{
    setWindowTitle(hostText("TEST_IS_RUNNING"));
    title_->setText(hostText("TEST_IS_RUNNING"));
    const QStringList texts = withMnemonics({hostText("STOP_TEST"), hostText("SIMULATE_EVENT")});
    stop_->setText(QStringLiteral("%1 (%2)").arg(texts[0], RunKeys::stopKeys()));
    stop_->setAccessibleName(hostText("STOP_TEST"));
    stop_->setToolTip(hostText("STOP_TEST_HINT").arg(RunKeys::stopKeys()));
    if (events_ == nullptr)
        return;
    events_->setText(texts[1]);
    events_->setAccessibleName(hostText("SIMULATE_EVENT"));
    menu_->setAccessibleName(hostText("SIMULATE_EVENT"));
    retranslateEventMenu(*menu_);
}

void RunBar::setRunning(bool isRunning)
{
    isRunning_ = isRunning;
    stop_->setEnabled(true);
    if (isRunning)
        retranslate();
    followDialog();
}

void RunBar::setStopping()
{
    title_->setText(hostText("STOPPING"));
    stop_->setEnabled(false);
}

// The main window is told when a dialog locks or frees it; the dialog itself is up only after that.
bool RunBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
        QTimer::singleShot(0, this, &RunBar::followDialog);
    return QWidget::eventFilter(watched, event);
}

void RunBar::followDialog()
{
    const QWidget *dialog = isRunning_ ? QApplication::activeModalWidget() : nullptr;
    if (dialog == nullptr || dialog->windowHandle() == nullptr)
        hide();
    else if (!isVisible() || windowHandle()->transientParent() != dialog->windowHandle())
        attachTo(*dialog);
}

// Whether a window is locked is decided when it is shown.
void RunBar::attachTo(const QWidget &dialog)
{
    hide();
    winId();
    windowHandle()->setTransientParent(dialog.windowHandle());
    const QRect room = dialog.screen()->availableGeometry();
    adjustSize();
    const int margin = 2 * fontMetrics().height(); // room for the title bar, whose height is known too late
    move(room.right() - width() - margin, room.top() + margin);
    show();
    raise();
}

void RunBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void RunBar::closeEvent(QCloseEvent *event) { event->ignore(); }

} // namespace host
