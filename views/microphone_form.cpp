// SPDX-License-Identifier: Apache-2.0
#include "views/microphone_form.h"

#include <QApplication>
#include <QDialog>
#include <QFont>
#include <QLCDNumber>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include <algorithm>

namespace ostra::microphone_form {

namespace {

// Pixels at 96 DPI. Text is measured in pixels of the form, not in points: the form grows with the monitor's DPI whether or
// not Qt scales points on its own, and the text has to grow with it.
constexpr QSize dialogSize(466, 260); // as wide as the playback test's
constexpr QSize lcdSize(140, 52);
constexpr int iconSide = 20;
constexpr int closeSide = 26;
constexpr int buttonIconSide = 16;
constexpr int footerHeight = 12;
constexpr double textHeight = 9.0 * 96.0 / 72.0; // nine points

QSize scaled(const QSize &size, double factor)
{
    return {static_cast<int>(size.width() * factor), static_cast<int>(size.height() * factor)};
}

QSize square(int side, double factor) { return scaled({side, side}, factor); }

void scaleFonts(const QDialog &dialog, double factor)
{
    QFont font = QApplication::font();
    font.setPixelSize(qRound(textHeight * factor));
    for (QWidget *widget : dialog.findChildren<QWidget *>()) {
        if (qobject_cast<QLabel *>(widget) != nullptr || qobject_cast<QAbstractButton *>(widget) != nullptr)
            widget->setFont(font);
    }
}

void scaleLayouts(const QDialog &dialog, double factor)
{
    for (QLayout *layout : dialog.findChildren<QLayout *>()) {
        layout->setContentsMargins(layout->contentsMargins() * factor);
        if (layout->spacing() > 0)
            layout->setSpacing(static_cast<int>(layout->spacing() * factor));
    }
}

// A stylesheet knows no scale: what it says in pixels is the size at 96 DPI.
void scaleIndicators(const QDialog &dialog, double factor)
{
    const auto pixels = [factor](int count) { return QString::number(static_cast<int>(count * factor)); };
    const QString side = pixels(12);
    const QString hole = pixels(6);
    const QString ring = pixels(5);
    // A radius larger than half the side would leave a square.
    const QString usual = QString::number((side.toInt() + 4) / 2);
    const QString checked = QString::number((hole.toInt() + 2 * ring.toInt()) / 2);
    const QString sheet =
        QStringLiteral(
            "QRadioButton::indicator { width: %1px; height: %1px; border-radius: %2px; }\n"
            "QRadioButton::indicator:checked { width: %3px; height: %3px; border-width: %4px; border-radius: %5px; }")
            .arg(side, usual, hole, ring, checked);
    for (QRadioButton *button : dialog.findChildren<QRadioButton *>())
        button->setStyleSheet(sheet);
}

template <typename Widget>
Widget *named(const QDialog &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QLatin1StringView(name));
}

void scaleWidgets(const QDialog &dialog, double factor)
{
    named<QWidget>(dialog, "microphone_test_header_icon")->setFixedSize(square(iconSide, factor));
    named<QWidget>(dialog, "microphone_test_header_close")->setFixedSize(square(closeSide, factor));
    named<QWidget>(dialog, "microphone_test_footer")->setFixedHeight(static_cast<int>(footerHeight * factor));
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        button->setIconSize(square(buttonIconSide, factor));
    for (QLCDNumber *lcd : dialog.findChildren<QLCDNumber *>())
        lcd->setFixedSize(scaled(lcdSize, factor));
}

// The stacked widget's own hints count labels in one line only.
int heightOfPages(const QStackedWidget &pages, int width)
{
    int height = 0;
    for (int index = 0; index < pages.count(); ++index) {
        const QLayout *layout = pages.widget(index)->layout();
        if (layout != nullptr)
            height = std::max(height, layout->totalHeightForWidth(width));
    }
    return height;
}

} // namespace

void scale(QDialog &dialog, double scaleFactor)
{
    scaleFonts(dialog, scaleFactor);
    scaleLayouts(dialog, scaleFactor);
    scaleWidgets(dialog, scaleFactor);
    scaleIndicators(dialog, scaleFactor);
    dialog.ensurePolished();
    for (QWidget *widget : dialog.findChildren<QWidget *>())
        widget->ensurePolished(); // a stylesheet's padding counts
    auto *pages = named<QStackedWidget>(dialog, "microphone_test_popups_space");
    const QSize least = scaled(dialogSize, scaleFactor);
    const int width = std::max(least.width(), dialog.minimumSizeHint().width());
    pages->setMinimumHeight(heightOfPages(*pages, width));
    dialog.setFixedSize(width, std::max(least.height(), dialog.minimumSizeHint().height()));
}

} // namespace ostra::microphone_form
