// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QPoint>
#include <QPushButton>
#include <QSize>

/// A push button that draws a second icon at a spot of its own, over whatever the style painted. Without an icon or a size it
/// is an ordinary push button.
///
/// In no namespace: host code finds it by its registered name "IconPushButton*". GUI thread only.
class IconPushButton : public QPushButton {
    Q_OBJECT

public:
    explicit IconPushButton(QWidget *parent = nullptr);

    /// Draws `icon` at `size` with its top-left corner at `topLeft`, both in the button's own pixels.
    void drawIconAt(const QIcon &icon, const QPoint &topLeft, const QSize &size);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon drawnIcon_;
    QPoint topLeft_{0, 0};
    QSize drawnSize_;
    [[maybe_unused]] int spare_ = 5; ///< part of the record; the painting does not read it
};
