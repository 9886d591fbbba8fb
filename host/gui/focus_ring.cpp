// SPDX-License-Identifier: Apache-2.0
#include "host/gui/focus_ring.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QRegion>

#include <algorithm>

namespace host {

namespace {

constexpr int usualDpi = 96;
constexpr int usualWidth = 2;

int ringWidth(const QWidget &widget) { return std::max(usualWidth, usualWidth * widget.logicalDpiX() / usualDpi); }

bool isOurs(const QWidget &widget) { return widget.window()->objectName().startsWith(QLatin1String("host_")); }

// A focus frame, because such a one is no element of the accessibility interface.
class Frame final : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).fillRect(rect(), palette().windowText()); }
};

} // namespace

FocusRing::FocusRing()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget * /*before*/, QWidget *now) { follow(now); });
}

FocusRing::~FocusRing() { follow(nullptr); }

void FocusRing::follow(QWidget *keyboard)
{
    delete frame_;
    keyboard_ = keyboard;
    if (keyboard == nullptr || !isOurs(*keyboard) || !keyboard->window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    frame_ = new Frame(keyboard->window());
    frame_->setObjectName(QStringLiteral("focus_ring"));
    for (QWidget *widget = keyboard; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        widget->installEventFilter(this); // what it lies in moves it as well; a second time does nothing
    place();
}

void FocusRing::place()
{
    const QRect rect(keyboard_->mapTo(keyboard_->window(), QPoint()), keyboard_->size());
    const QRect whole(QPoint(), rect.size());
    const int width = ringWidth(*keyboard_);
    frame_->setGeometry(rect);
    frame_->setMask(QRegion(whole) - whole.adjusted(width, width, -width, -width));
    frame_->setVisible(keyboard_->isVisible());
    frame_->raise();
}

bool FocusRing::eventFilter(QObject * /*watched*/, QEvent *event)
{
    const bool isMoved = event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::Show ||
                         event->type() == QEvent::Hide;
    if (isMoved && frame_ && keyboard_)
        place();
    return false;
}

} // namespace host
