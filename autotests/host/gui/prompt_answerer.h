// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <memory>

/// Presses a button of each prompt of the host that comes up while it lives, as a person does.
class PromptAnswerer {
public:
    explicit PromptAnswerer(const char *button)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [texts = texts_, button] {
            QWidget *prompt = QApplication::activeModalWidget();
            if (prompt == nullptr || prompt->objectName() != QLatin1String("host_prompt"))
                return;
            texts->append(prompt->findChild<QLabel *>(QStringLiteral("host_prompt_text"))->text());
            prompt->findChild<QPushButton *>(QLatin1String(button))->click();
        });
        timer_.start(20);
    }

    /// Of each prompt.
    const QStringList &texts() const { return *texts_; }

private:
    std::shared_ptr<QStringList> texts_ = std::make_shared<QStringList>();
    QTimer timer_;
};
