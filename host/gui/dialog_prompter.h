// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/prompter.h"

#include <QPointer>

class QDialog;
class QObject;
class QWidget;

namespace host {

/// Asks in dialogs of the host's own. GUI thread.
class DialogPrompter final : public Prompter {
public:
    /// The windows that the dialogs belong to and the filter that the module's dialogs get; either may be null.
    void setParents(QWidget *window, QObject *eventFilter);

    void runWidget(ostra::AbstractWidgetWrapper &widget) override;
    std::uint32_t ask(const QString &title, const QString &text) override;
    bool accept(const QString &title, const QString &text) override;
    bool canAsk() const override { return true; }
    void dismissAll() override;

private:
    int run(QDialog &dialog);

    QPointer<QWidget> window_;
    QPointer<QObject> eventFilter_;
    QPointer<QDialog> open_;
};

} // namespace host
