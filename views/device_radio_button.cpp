// SPDX-License-Identifier: Apache-2.0
#include "views/device_radio_button.h"

#include <QFontMetrics>
#include <QKeySequence>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextDocument>

namespace ostra {

namespace {

constexpr int leastCharacters = 12;

QString withoutMnemonic(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

// A tool tip takes a text with tags for rich text, and one with escapes only for plain text.
QString literally(const QString &name)
{
    return Qt::mightBeRichText(name) ? QStringLiteral("<span>%1</span>").arg(name.toHtmlEscaped()) : name;
}

} // namespace

DeviceRadioButton::DeviceRadioButton(const QString &name, QWidget *parent) : QRadioButton(name, parent)
{
    setShortcut(QKeySequence()); // an ampersand in a name asks for none
    setAccessibleName(name);
    setToolTip(literally(name));
}

QFontMetrics DeviceRadioButton::boldMetrics() const
{
    QFont bold = font();
    bold.setBold(true);
    return QFontMetrics(bold, this);
}

int DeviceRadioButton::frameWidth() const
{
    QStyleOptionButton option;
    QRadioButton::initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_RadioButton, &option, QSize(0, fontMetrics().height()), this).width();
}

QSize DeviceRadioButton::sizeHint() const
{
    return {frameWidth() + boldMetrics().horizontalAdvance(text()) + 2, QRadioButton::sizeHint().height()};
}

QSize DeviceRadioButton::minimumSizeHint() const
{
    const int least = frameWidth() + leastCharacters * boldMetrics().averageCharWidth();
    return {qMin(least, sizeHint().width()), sizeHint().height()};
}

void DeviceRadioButton::initStyleOption(QStyleOptionButton *option) const
{
    QRadioButton::initStyleOption(option);
    const int room = width() - frameWidth();
    option->text = withoutMnemonic(boldMetrics().elidedText(text(), Qt::ElideMiddle, room));
}

} // namespace ostra
