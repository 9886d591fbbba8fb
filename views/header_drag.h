// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace ostra {

/// Moves a frameless dialog by its header. The dialog passes its own mouse events on. GUI thread only.
class HeaderDrag {
public:
    /// None is owned; all live as long as this.
    HeaderDrag(QWidget &dialog, const QWidget &header, const QWidget &closeButton)
        : dialog_(dialog), header_(header), closeButton_(closeButton)
    {}

    /// Starts a drag when the press, of any button, is on the header and not on its close button.
    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void release();

private:
    QWidget &dialog_;
    const QWidget &header_;
    const QWidget &closeButton_;
    bool isDragging_ = false;
    QPoint offset_; ///< of the cursor inside the dialog when the drag began
};

} // namespace ostra
