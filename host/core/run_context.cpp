// SPDX-License-Identifier: Apache-2.0
#include "host/core/run_context.h"

#include "contract/input_request.h"
#include "contract/result_codes.h"
#include "host/core/prompter.h"
#include "host/core/run_reason.h"

#include <QMetaObject>
#include <QMutexLocker>
#include <QThread>

#include <algorithm>

namespace host {

namespace {

constexpr std::uint32_t fullPercent = 100;

// The options by which a test asks for the Yes/No question instead of a prompt.
bool isQuestion(const ostra::InputRequest &request)
{
    return request.firstOption == 5 && request.secondOption == 2 && request.thirdOption == 0;
}

} // namespace

RunContext::RunContext(ostra::SystemComponent *component, Prompter &prompter, QObject *parent)
    : QObject(parent), component_(component), prompter_(prompter)
{}

RunContext::~RunContext() = default;

void RunContext::stop()
{
    isStopped_.store(true);
    prompter_.dismissAll();
}

void RunContext::complete(std::uint32_t moduleCode, RunRecord &record) const
{
    {
        const QMutexLocker locker(&mutex_);
        record.progress = progress_;
        record.messages = messages_;
    }
    record.moduleCode = moduleCode;
    record.wasStopped = isStopped();
    record.code = record.wasStopped ? ostra::result::notCompleted : moduleCode;
    if (record.wasStopped)
        record.reason = reasonWords("REASON_STOPPED");
}

void RunContext::addMessage(std::string text, std::uint32_t level, std::uint32_t /*reserved*/)
{
    const RunMessage message{QString::fromStdString(text), level};
    {
        const QMutexLocker locker(&mutex_);
        messages_.append(message);
    }
    emit messageAdded(message.text, message.level);
}

void RunContext::report(std::uint32_t percent, std::string text)
{
    const RunProgress progress{std::min(percent, fullPercent), QString::fromStdString(text)};
    {
        const QMutexLocker locker(&mutex_);
        progress_.append(progress);
    }
    emit progressed(progress.percent, progress.text);
}

void RunContext::requestInput(ostra::InputRequest *request)
{
    if (request == nullptr)
        return;
    if (QThread::currentThread() == thread())
        answer(*request);
    else
        QMetaObject::invokeMethod(
            this, [this, request] { answer(*request); }, Qt::BlockingQueuedConnection);
}

bool RunContext::canReceiveInput() { return prompter_.canAsk(); }

// After a stop nothing is asked any more; a dialog of the module is still run, because it closes itself and its wrapper then
// knows how it ended.
void RunContext::answer(ostra::InputRequest &request)
{
    const QString title = QString::fromStdString(request.title);
    const QString text = QString::fromStdString(request.text);
    request.answer = prompt_answer::declined;
    if (request.widget != nullptr)
        prompter_.runWidget(*request.widget);
    else if (isStopped())
        return;
    else if (isQuestion(request))
        request.answer = prompter_.ask(title, text);
    else
        request.answer = prompter_.accept(title, text) ? prompt_answer::accepted : prompt_answer::declined;
}

} // namespace host
