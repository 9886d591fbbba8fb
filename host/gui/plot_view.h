// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QWidget>

namespace host {

/// A plot that also tells its values one by one: the arrow keys, Home and End walk through them once it has the keyboard. It is
/// a picture to those who do not see it, with a name and a description in words, which its owner sets.
class PlotView : public QWidget {
    Q_OBJECT

public:
    explicit PlotView(QWidget *parent = nullptr);

    /// Makes it a stop of the Tab key.
    void setWalkable();
    /// Position that the keys have reached; -1 before.
    int position() const noexcept { return position_; }

    QSize minimumSizeHint() const override;

signals:
    /// What is at the position that a key has reached, in words.
    void walked(const QString &words);

protected:
    virtual int stepCount() const = 0;
    virtual QString wordsAt(int step) const = 0;
    /// For new values.
    void forgetPosition();
    /// Behind everything else: the background, and a frame where the keyboard is.
    void paintBackground(QPainter &painter) const;

    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int target(int key) const;

    int position_ = -1;
};

} // namespace host
