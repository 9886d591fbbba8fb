// SPDX-License-Identifier: Apache-2.0
#include "host/gui/host_prompts.h"

#include "host/core/prompter.h"
#include "host/gui/key_text.h"
#include "host/gui/mnemonics.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int textWidthInLetters = 56; // a line that reads well

struct Buttons {
    QPushButton *first;
    QPushButton *second;
};

void prepare(QDialog &dialog, const QString &name)
{
    dialog.setObjectName(name);
    dialog.setWindowTitle(shownText(QStringLiteral("APPLICATION_NAME")));
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.setWindowModality(Qt::ApplicationModal);
}

QLabel *addText(QVBoxLayout &layout, const QString &text, const QString &name)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // a device may be named like a tag
    label->setWordWrap(true);
    label->setMinimumWidth(textWidthInLetters * label->fontMetrics().averageCharWidth());
    layout.addWidget(label);
    return label;
}

void addTitle(QVBoxLayout &layout, const QString &text, const QString &name)
{
    QLabel *label = addText(layout, text, name);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    label->setFont(font);
}

Buttons addButtons(QVBoxLayout &layout, const char *firstKey, const char *secondKey, const QString &name)
{
    const QStringList texts = withMnemonics({hostText(firstKey), hostText(secondKey)});
    const Buttons buttons{new QPushButton(texts[0]), new QPushButton(texts[1])};
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

QString listed(const QStringList &endpoints)
{
    QString text;
    for (const QString &endpoint : endpoints)
        text += (text.isEmpty() ? QStringLiteral("• ") : QStringLiteral("\n• ")) + endpoint;
    return text;
}

QVBoxLayout *makeLayout(QDialog &dialog)
{
    auto *layout = new QVBoxLayout(&dialog);
    const int line = dialog.fontMetrics().height();
    layout->setContentsMargins(line, line, line, line);
    layout->setSpacing(line * 2 / 3);
    return layout;
}

} // namespace

InstructionsPrompt::InstructionsPrompt(const QString &title, const QString &text, const QStringList &endpoints, QWidget *parent)
    : QDialog(parent)
{
    prepare(*this, QStringLiteral("host_prompt"));
    QVBoxLayout *layout = makeLayout(*this);
    addTitle(*layout, shownText(title), QStringLiteral("host_prompt_title"));
    addText(*layout, shownSentences(text).join(u'\n'), QStringLiteral("host_prompt_text"));
    if (!endpoints.isEmpty()) {
        addText(*layout, hostText("ENDPOINTS_RAISED"), QStringLiteral("host_prompt_endpoints_title"));
        addText(*layout, listed(endpoints), QStringLiteral("host_prompt_endpoints"));
    }
    const Buttons buttons = addButtons(*layout, "PROMPT_ACCEPT", "PROMPT_DECLINE", QStringLiteral("host_prompt_buttons"));
    buttons.first->setObjectName(QStringLiteral("host_prompt_accept"));
    buttons.second->setObjectName(QStringLiteral("host_prompt_decline"));
    buttons.first->setDefault(true);
    buttons.first->setFocus();
    connect(buttons.first, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons.second, &QPushButton::clicked, this, &QDialog::reject);
}

PrecheckPrompt::PrecheckPrompt(const QStringList &findings, bool isRefused, QWidget *parent) : QDialog(parent)
{
    prepare(*this, QStringLiteral("host_precheck"));
    QVBoxLayout *layout = makeLayout(*this);
    addTitle(*layout, hostText(isRefused ? "PRECHECK_REFUSED" : "PRECHECK_TITLE"), QStringLiteral("host_precheck_title"));
    addText(*layout, listed(findings), QStringLiteral("host_precheck_text"));
    const Buttons buttons = addButtons(*layout, "PRECHECK_RUN", "PRECHECK_CLOSE", QStringLiteral("host_precheck_buttons"));
    buttons.first->setObjectName(QStringLiteral("host_precheck_run"));
    buttons.second->setObjectName(QStringLiteral("host_precheck_close"));
    buttons.first->setVisible(!isRefused);
    buttons.second->setDefault(true);
    buttons.second->setFocus();
    connect(buttons.first, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons.second, &QPushButton::clicked, this, &QDialog::reject);
}

QuestionPrompt::QuestionPrompt(const QString &title, const QString &text, QWidget *parent) : QDialog(parent)
{
    prepare(*this, QStringLiteral("host_question"));
    QVBoxLayout *layout = makeLayout(*this);
    addTitle(*layout, shownText(title), QStringLiteral("host_question_title"));
    QLabel *question = addText(*layout, shownSentences(text).join(u'\n'), QStringLiteral("host_question_text"));
    question->setTextInteractionFlags(Qt::TextSelectableByKeyboard); // shows where the keyboard is
    question->setFocusPolicy(Qt::StrongFocus);
    const Buttons buttons = addButtons(*layout, "QUESTION_YES", "QUESTION_NO", QStringLiteral("host_question_buttons"));
    buttons.first->setObjectName(QStringLiteral("host_question_yes"));
    buttons.second->setObjectName(QStringLiteral("host_question_no"));
    buttons.first->setAutoDefault(false); // neither answer is suggested
    buttons.second->setAutoDefault(false);
    question->setFocus(); // a key pressed too soon must not answer
    connect(buttons.first, &QPushButton::clicked, this, [this] { done(static_cast<int>(prompt_answer::yes)); });
    connect(buttons.second, &QPushButton::clicked, this, [this] { done(static_cast<int>(prompt_answer::no)); });
}

void QuestionPrompt::closeEvent(QCloseEvent *event) { event->ignore(); }

void QuestionPrompt::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    if (isEnter && button != nullptr)
        button->click();
    else if (!isEnter && !event->matches(QKeySequence::Cancel))
        QDialog::keyPressEvent(event);
}

} // namespace host
