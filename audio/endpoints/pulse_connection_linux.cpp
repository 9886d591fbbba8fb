// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/pulse_connection_linux.h"

namespace ostra::audio {

namespace {

struct CancelAndFree {
    void operator()(pa_operation *operation) const
    {
        pa_operation_cancel(operation); // the callback's target may be gone before a late answer comes
        pa_operation_unref(operation);
    }
};

} // namespace

bool PulseConnection::open()
{
    loop_.reset(pa_mainloop_new());
    if (!loop_)
        return false;
    context_.reset(pa_context_new(pa_mainloop_get_api(loop_.get()), "module_audio"));
    if (!context_ || pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return false;
    while (PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get()))) {
        if (pa_context_get_state(context_.get()) == PA_CONTEXT_READY)
            return true;
        if (!turn())
            return false;
    }
    return false;
}

bool PulseConnection::finish(pa_operation *operation)
{
    const std::unique_ptr<pa_operation, CancelAndFree> owner(operation);
    if (!owner)
        return false;
    while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) {
        if (!turn())
            return false;
    }
    return pa_operation_get_state(operation) == PA_OPERATION_DONE;
}

bool PulseConnection::turn()
{
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline_ - std::chrono::steady_clock::now());
    return left.count() > 0 && pa_mainloop_prepare(loop_.get(), static_cast<int>(left.count())) >= 0 &&
           pa_mainloop_poll(loop_.get()) >= 0 && pa_mainloop_dispatch(loop_.get()) >= 0;
}

} // namespace ostra::audio
