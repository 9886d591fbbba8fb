// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace host {

/// Shown before a test: what will happen, and whose volume will be raised. Object names "host_prompt", "host_prompt_text",
/// "host_prompt_accept" and "host_prompt_decline". Escape and close decline.
class InstructionsPrompt : public QDialog {
    Q_OBJECT

public:
    /// Both texts are keys; `endpoints` are shown as they are.
    InstructionsPrompt(const QString &title, const QString &text, const QStringList &endpoints, QWidget *parent = nullptr);
};

/// Shown before a test where something should be known: `findings`, one sentence each. With `isRefused` the test cannot take
/// place, and there is but the button that closes. Object names "host_precheck", "host_precheck_text", "host_precheck_run" and
/// "host_precheck_close". Escape and close decline.
class PrecheckPrompt : public QDialog {
    Q_OBJECT

public:
    PrecheckPrompt(const QStringList &findings, bool isRefused, QWidget *parent = nullptr);
};

/// A question that only its two buttons answer: Escape, Enter beside a button and close do nothing. Object names
/// "host_question", "host_question_yes" and "host_question_no".
class QuestionPrompt : public QDialog {
    Q_OBJECT

public:
    QuestionPrompt(const QString &title, const QString &text, QWidget *parent = nullptr);

    void reject() override {}

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace host
