// SPDX-License-Identifier: Apache-2.0
#include "host/gui/host_prompts.h"

#include "host/core/prompter.h"
#include "host/gui/key_text.h"
#include "host/gui/prompt_parts.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

QString listed(const QStringList &endpoints)
{
    QString text;
    for (const QString &endpoint : endpoints)
        text += (text.isEmpty() ? QStringLiteral("• ") : QStringLiteral("\n• ")) + endpoint;
    return text;
}

} // namespace

InstructionsPrompt::InstructionsPrompt(const QString &title, const QString &text, const QStringList &endpoints, QWidget *parent)
    : QDialog(parent)
{
    preparePrompt(*this, QStringLiteral("host_prompt"));
    QVBoxLayout *layout = makePromptLayout(*this);
    addPromptTitle(*layout, shownText(title), QStringLiteral("host_prompt_title"));
    addPromptText(*layout, shownSentences(text).join(u'\n'), QStringLiteral("host_prompt_text"));
    if (!endpoints.isEmpty()) {
        addPromptText(*layout, hostText("ENDPOINTS_RAISED"), QStringLiteral("host_prompt_endpoints_title"));
        addPromptText(*layout, listed(endpoints), QStringLiteral("host_prompt_endpoints"));
    }
    const PromptButtons buttons =
        addPromptButtons(*layout, "PROMPT_ACCEPT", "PROMPT_DECLINE", QStringLiteral("host_prompt_buttons"));
    buttons.first->setObjectName(QStringLiteral("host_prompt_accept"));
    buttons.second->setObjectName(QStringLiteral("host_prompt_decline"));
    buttons.first->setDefault(true);
    buttons.first->setFocus();
    connect(buttons.first, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons.second, &QPushButton::clicked, this, &QDialog::reject);
}

PrecheckPrompt::PrecheckPrompt(const QStringList &findings, bool isRefused, QWidget *parent) : QDialog(parent)
{
    preparePrompt(*this, QStringLiteral("host_precheck"));
    QVBoxLayout *layout = makePromptLayout(*this);
    addPromptTitle(*layout, hostText(isRefused ? "PRECHECK_REFUSED" : "PRECHECK_TITLE"), QStringLiteral("host_precheck_title"));
    addPromptText(*layout, listed(findings), QStringLiteral("host_precheck_text"));
    const PromptButtons buttons =
        addPromptButtons(*layout, "PRECHECK_RUN", "PRECHECK_CLOSE", QStringLiteral("host_precheck_buttons"));
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
    preparePrompt(*this, QStringLiteral("host_question"));
    QVBoxLayout *layout = makePromptLayout(*this);
    addPromptTitle(*layout, shownText(title), QStringLiteral("host_question_title"));
    QLabel *question = addPromptText(*layout, shownSentences(text).join(u'\n'), QStringLiteral("host_question_text"));
    question->setTextInteractionFlags(Qt::TextSelectableByKeyboard); // shows where the keyboard is
    question->setFocusPolicy(Qt::StrongFocus);
    const PromptButtons buttons =
        addPromptButtons(*layout, "QUESTION_YES", "QUESTION_NO", QStringLiteral("host_question_buttons"));
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
