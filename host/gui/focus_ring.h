// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace host {

/// Draws a frame around whatever has the keyboard in a window of the host, in the colour of its text: what the styles of Qt
/// draw there is hard to see, in the contrast themes above all. It appears once somebody has used the Tab key, as the styles'
/// own marks do. One for the whole program, which follows the keyboard from window to window; screen readers do not meet it.
class FocusRing : public QObject {
    Q_OBJECT

public:
    FocusRing();
    ~FocusRing() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *keyboard);
    void place();

    QPointer<QWidget> keyboard_;
    QPointer<QFocusFrame> frame_; ///< of the window that it lies in, which may go before
};

} // namespace host
