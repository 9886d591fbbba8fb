// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/polling_host.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds readingTime{5}; // of a prompt; long enough for something to happen meanwhile
constexpr std::uint32_t questionOption = 5;
constexpr std::uint32_t accepted = 1;
constexpr std::uint32_t yes = 3;

} // namespace

void PollingHost::poll()
{
    ++pollCount;
    if (onPoll)
        onPoll(pollCount);
}

bool PollingHost::continueOnOutcome()
{
    poll();
    return wantsStop;
}

std::uint32_t PollingHost::Events::pendingEvents()
{
    owner_.poll();
    owner_.wasToldOfEvent = owner_.wasToldOfEvent || owner_.flags != 0;
    return owner_.flags;
}

void PollingHost::show(ostra::InputRequest &request)
{
    if (request.widget == nullptr) {
        const bool isQuestion = request.firstOption == questionOption;
        ask(request, isQuestion ? Showing::question : Showing::prompt, isQuestion ? yes : accepted);
        return;
    }
    showing = Showing::dialog;
    wrapper = request.widget;
    dialogResult = wrapper->exec(nullptr, nullptr);
    sinceDialogEnded.start();
    wrapper = nullptr;
    showing = Showing::nothing;
}

void PollingHost::ask(ostra::InputRequest &request, Showing kind, std::uint32_t answer)
{
    showing = kind;
    QEventLoop loop;
    QTimer::singleShot(readingTime, &loop, &QEventLoop::quit);
    loop.exec();
    request.answer = answer;
    showing = Showing::nothing;
}
