// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <pulse/context.h>
#include <pulse/mainloop.h>
#include <pulse/operation.h>

#include <chrono>
#include <memory>

namespace ostra::audio {

/// A connection of our own to the user's sound server, for one pass on one thread. Everything that waits ends by one deadline,
/// counted from the construction.
class PulseConnection {
public:
    explicit PulseConnection(std::chrono::milliseconds bound) : deadline_(std::chrono::steady_clock::now() + bound) {}

    /// Connects and waits until the server talks. Never starts a server. False: there is none, or it did not answer in time.
    bool open();
    pa_context *context() const { return context_.get(); }

    /// Waits for the end of an operation and frees it; a null one has failed. False also when the deadline passed: the
    /// operation's callback is then never called any more.
    bool finish(pa_operation *operation);

private:
    struct FreeLoop {
        void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
    };
    struct LeaveContext {
        void operator()(pa_context *context) const
        {
            pa_context_disconnect(context);
            pa_context_unref(context);
        }
    };

    bool turn();

    std::chrono::steady_clock::time_point deadline_;
    std::unique_ptr<pa_mainloop, FreeLoop> loop_;
    std::unique_ptr<pa_context, LeaveContext> context_;
};

} // namespace ostra::audio
