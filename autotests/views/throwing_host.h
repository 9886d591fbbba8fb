// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>
#include <QEvent>
#include <QObject>
#include <QProxyStyle>

#include <new>
#include <optional>
#include <utility>

/// What a host may hang on a dialog and its widgets, and what may throw there.
namespace throwing_host {

template <typename Action>
bool comesOut(Action action)
{
    try {
        action();
    } catch (...) {
        return true;
    }
    return false;
}

/// An event filter that throws at the first event of a type, if wanted only after one of another type.
class Filter final : public QObject {
public:
    explicit Filter(QEvent::Type type, std::optional<QEvent::Type> after = {}) : type_(type), after_(after) {}

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (after_ == event->type())
            after_.reset();
        if (!after_ && event->type() == type_ && !std::exchange(hasThrown_, true))
            throw std::bad_alloc();
        return false;
    }
    bool hasThrown() const noexcept { return hasThrown_; }

private:
    QEvent::Type type_;
    std::optional<QEvent::Type> after_;
    bool hasThrown_ = false;
};

/// An event filter that listens to the end of its dialog before anybody else, and throws each time.
class FirstListener final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent * /*event*/) override
    {
        if (!std::exchange(listens_, true)) {
            connect(static_cast<QDialog *>(watched), &QDialog::finished, this, [this] {
                ++toldCount_;
                throw std::bad_alloc();
            });
        }
        return false;
    }
    int toldCount() const noexcept { return toldCount_; }

private:
    bool listens_ = false;
    int toldCount_ = 0;
};

/// A style that throws while it draws `widget`, for as long as it is told to.
class Style final : public QProxyStyle {
public:
    explicit Style(const QWidget &widget) : widget_(widget) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        throwFor(widget);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        throwFor(widget);
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    bool throws = false;
    mutable int thrownCount = 0;

private:
    void throwFor(const QWidget *widget) const
    {
        if (!throws || widget != &widget_)
            return;
        ++thrownCount;
        throw std::bad_alloc();
    }

    const QWidget &widget_;
};

} // namespace throwing_host
