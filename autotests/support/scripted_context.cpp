// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/scripted_context.h"

#include <stdexcept>

void ScriptedContext::note(const std::string &call)
{
    calls.push_back(call);
    const bool isChosen = !throwsAt.empty() && call.starts_with(throwsAt);
    if (!isChosen && throwingCall != calls.size() - 1)
        return;
    if (fail)
        fail();
    throw std::runtime_error("the host failed at: " + call);
}

void ScriptedContext::Sink::addMessage(std::string text, std::uint32_t level, std::uint32_t reserved)
{
    owner_.note("message " + text + " " + std::to_string(level) + " " + std::to_string(reserved));
}

void ScriptedContext::Reporter::report(std::uint32_t percent, std::string text)
{
    owner_.note("report " + std::to_string(percent) + " " + text);
}

void ScriptedContext::Reporter::requestInput(ostra::InputRequest *request)
{
    const std::string options = std::to_string(request->firstOption) + " " + std::to_string(request->secondOption) + " " +
                                std::to_string(request->thirdOption);
    const std::string rest =
        std::to_string(request->answer) + " " + std::to_string(request->extra) + " " + std::to_string(request->choices.size());
    owner_.note("input " + request->title + "|" + request->text + "|" + options + "|" +
                (request->widget == nullptr ? "plain" : "widget") + "|" + rest);
    if (request->widget == nullptr)
        request->answer = owner_.answer;
    else if (owner_.onWidget)
        owner_.onWidget(*request);
}

std::uint32_t ScriptedContext::Events::pendingEvents()
{
    owner_.note("events");
    if (owner_.pending.empty())
        return 0;
    const std::uint32_t flags = owner_.pending.front();
    owner_.pending.erase(owner_.pending.begin());
    return flags;
}
