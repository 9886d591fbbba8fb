// SPDX-License-Identifier: Apache-2.0
#include "host/gui/prompt_parts.h"

#include "host/gui/key_text.h"
#include "host/gui/mnemonics.h"

#include <QDialog>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int textWidthInLetters = 56; // a line that reads well

} // namespace

void preparePrompt(QDialog &dialog, const QString &name)
{
    dialog.setObjectName(name);
    dialog.setWindowTitle(shownText(QStringLiteral("APPLICATION_NAME")));
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.setWindowModality(Qt::ApplicationModal);
}

QLabel *addPromptText(QVBoxLayout &layout, const QString &text, const QString &name)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // a device may be named like a tag
    label->setWordWrap(true);
    label->setMinimumWidth(textWidthInLetters * label->fontMetrics().averageCharWidth());
    layout.addWidget(label);
    return label;
}

void addPromptTitle(QVBoxLayout &layout, const QString &text, const QString &name)
{
    QLabel *label = addPromptText(layout, text, name);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    label->setFont(font);
}

PromptButtons addPromptButtons(QVBoxLayout &layout, const char *firstKey, const char *secondKey, const QString &name)
{
    const QStringList texts = withMnemonics({hostText(firstKey), hostText(secondKey)});
    const PromptButtons buttons{new QPushButton(texts[0]), new QPushButton(texts[1])};
    buttons.first->setAccessibleName(hostText(firstKey));
    buttons.second->setAccessibleName(hostText(secondKey));
    auto *row = new QHBoxLayout;
    row->setObjectName(name);
    row->addStretch();
    row->addWidget(buttons.first);
    row->addWidget(buttons.second);
    layout.addLayout(row);
    return buttons;
}

QVBoxLayout *makePromptLayout(QDialog &dialog)
{
    auto *layout = new QVBoxLayout(&dialog);
    const int line = dialog.fontMetrics().height();
    layout->setContentsMargins(line, line, line, line);
    layout->setSpacing(line * 2 / 3);
    return layout;
}

} // namespace host
