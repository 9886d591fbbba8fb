// SPDX-License-Identifier: Apache-2.0
#include "host/gui/dialog_prompter.h"

#include "contract/abstract_widget_wrapper.h"
#include "host/guardian/guardian_client.h"
#include "host/gui/host_prompts.h"

#include <QWidget>

namespace host {

void DialogPrompter::setParents(QWidget *window, QObject *eventFilter)
{
    window_ = window;
    eventFilter_ = eventFilter;
}

void DialogPrompter::runWidget(ostra::AbstractWidgetWrapper &widget) { widget.exec(window_, eventFilter_); }

std::uint32_t DialogPrompter::ask(const QString &title, const QString &text)
{
    QuestionPrompt question(title, text, window_);
    return static_cast<std::uint32_t>(run(question));
}

bool DialogPrompter::accept(const QString &title, const QString &text)
{
    InstructionsPrompt prompt(title, text, endpointsThatWillBeRaised(), window_);
    return run(prompt) == QDialog::Accepted;
}

void DialogPrompter::dismissAll()
{
    if (open_)
        open_->done(0);
}

int DialogPrompter::run(QDialog &dialog)
{
    open_ = &dialog;
    const int answer = dialog.exec();
    open_ = nullptr;
    return answer;
}

} // namespace host
