// SPDX-License-Identifier: Apache-2.0
#include "host/sal/sound_server_linux.h"

#include <pulse/context.h>
#include <pulse/introspect.h>
#include <pulse/mainloop.h>
#include <pulse/operation.h>
#include <pulse/proplist.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <memory>
#include <utility>

namespace sal {
namespace {

struct MainloopFree {
    void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
};
struct ContextRelease {
    void operator()(pa_context *context) const
    {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};
struct OperationRelease {
    void operator()(pa_operation *operation) const
    {
        pa_operation_cancel(operation); // a late answer must not reach the facts of a look that was given up
        pa_operation_unref(operation);
    }
};
using Mainloop = std::unique_ptr<pa_mainloop, MainloopFree>;
using Context = std::unique_ptr<pa_context, ContextRelease>;
using Operation = std::unique_ptr<pa_operation, OperationRelease>;
using Deadline = std::chrono::steady_clock::time_point;

std::optional<std::uint32_t> number(const char *text)
{
    std::uint32_t value = 0;
    if (text == nullptr)
        return std::nullopt;
    const char *end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return value;
}

std::string present(const char *text) { return text == nullptr ? std::string() : std::string(text); }

// What the list callbacks fill. They are called by C code, so a failure is remembered instead of thrown through it.
struct Look {
    SoundFacts &facts;
    std::int32_t failure = 0; // an errno value
};

// Whether `info` is one more entry; below 0 the server could not answer.
bool isEntry(Look &look, const void *info, int endOfList)
{
    if (endOfList < 0)
        look.failure = EIO;
    return endOfList == 0 && info != nullptr;
}

void addSink(pa_context *, const pa_sink_info *info, int endOfList, void *user) noexcept
try {
    if (!isEntry(*static_cast<Look *>(user), info, endOfList))
        return;
    SinkFacts sink;
    sink.description = present(info->description);
    if (info->card != PA_INVALID_INDEX)
        sink.card = info->card;
    static_cast<Look *>(user)->facts.sinks.push_back(std::move(sink));
} catch (...) {
    static_cast<Look *>(user)->failure = ENOMEM;
}

void addCard(pa_context *, const pa_card_info *info, int endOfList, void *user) noexcept
try {
    if (!isEntry(*static_cast<Look *>(user), info, endOfList))
        return;
    CardFacts card;
    card.index = info->index;
    card.description = present(pa_proplist_gets(info->proplist, PA_PROP_DEVICE_DESCRIPTION));
    card.alsaCard = number(pa_proplist_gets(info->proplist, "alsa.card"));
    static_cast<Look *>(user)->facts.cards.push_back(std::move(card));
} catch (...) {
    static_cast<Look *>(user)->failure = ENOMEM;
}

// One turn of the loop that ends by the deadline; 0 or an errno value.
std::int32_t turn(pa_mainloop *loop, Deadline deadline)
{
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0)
        return ETIMEDOUT;
    if (pa_mainloop_prepare(loop, static_cast<int>(left.count())) < 0 || pa_mainloop_poll(loop) < 0 ||
        pa_mainloop_dispatch(loop) < 0)
        return ECONNREFUSED;
    return 0;
}

std::int32_t waitUntilReady(pa_mainloop *loop, const pa_context *context, Deadline deadline)
{
    while (pa_context_get_state(context) != PA_CONTEXT_READY) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(context)))
            return ECONNREFUSED;
        if (const std::int32_t code = turn(loop, deadline); code != 0)
            return code;
    }
    return 0;
}

std::int32_t waitUntilDone(pa_mainloop *loop, const Operation &operation, Deadline deadline)
{
    if (!operation)
        return ECONNREFUSED;
    while (pa_operation_get_state(operation.get()) == PA_OPERATION_RUNNING) {
        if (const std::int32_t code = turn(loop, deadline); code != 0)
            return code;
    }
    return pa_operation_get_state(operation.get()) == PA_OPERATION_DONE ? 0 : ECONNREFUSED;
}

} // namespace

std::int32_t readSoundServer(SoundFacts &facts, std::chrono::milliseconds bound)
{
    const Deadline deadline = std::chrono::steady_clock::now() + bound;
    const Mainloop loop(pa_mainloop_new());
    if (!loop)
        return ENOMEM;
    const Context context(pa_context_new(pa_mainloop_get_api(loop.get()), "sal"));
    if (!context)
        return ENOMEM;
    if (pa_context_connect(context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return ECONNREFUSED;
    if (const std::int32_t code = waitUntilReady(loop.get(), context.get(), deadline); code != 0)
        return code;
    Look look{facts};
    const Operation sinks(pa_context_get_sink_info_list(context.get(), addSink, &look));
    const Operation cards(pa_context_get_card_info_list(context.get(), addCard, &look));
    if (const std::int32_t code = waitUntilDone(loop.get(), sinks, deadline); code != 0)
        return code;
    const std::int32_t code = waitUntilDone(loop.get(), cards, deadline);
    return code != 0 ? code : look.failure;
}

} // namespace sal
