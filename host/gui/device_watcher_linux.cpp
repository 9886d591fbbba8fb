// SPDX-License-Identifier: Apache-2.0
#include "host/gui/device_watcher.h"

#include <QMetaObject>
#include <QTimer>

#include <pulse/context.h>
#include <pulse/operation.h>
#include <pulse/subscribe.h>
#include <pulse/thread-mainloop.h>

#include <chrono>

namespace host {

namespace {

constexpr std::chrono::seconds reconnectAfter{2}; // a restarted server needs about one

struct StopLoop {
    void operator()(pa_threaded_mainloop *loop) const
    {
        pa_threaded_mainloop_stop(loop);
        pa_threaded_mainloop_free(loop);
    }
};

class Lock {
public:
    explicit Lock(pa_threaded_mainloop *loop) : loop_(loop) { pa_threaded_mainloop_lock(loop_); }
    ~Lock() { pa_threaded_mainloop_unlock(loop_); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

private:
    pa_threaded_mainloop *loop_;
};

void forget(pa_operation *operation)
{
    if (operation != nullptr)
        pa_operation_unref(operation);
}

} // namespace

struct DeviceWatcher::Private {
    explicit Private(DeviceWatcher &watcher) : owner(watcher), loop(pa_threaded_mainloop_new())
    {
        reconnect.setSingleShot(true);
        reconnect.setInterval(reconnectAfter);
        QObject::connect(&reconnect, &QTimer::timeout, &watcher, [this] { connectToServer(); });
        if (!loop || pa_threaded_mainloop_start(loop.get()) < 0)
            return;
        connectToServer();
    }

    ~Private()
    {
        if (!loop)
            return;
        const Lock lock(loop.get());
        leave();
    }
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    void connectToServer()
    {
        const Lock lock(loop.get());
        leave();
        context = pa_context_new(pa_threaded_mainloop_get_api(loop.get()), "TamrexDiagnostics");
        if (context == nullptr)
            return;
        pa_context_set_state_callback(context, onState, this);
        pa_context_set_subscribe_callback(context, onEvent, this);
        if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
            reconnect.start();
    }

    void leave()
    {
        if (context == nullptr)
            return;
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
        context = nullptr;
    }

    // On the loop's thread, with its lock.
    static void onState(pa_context *server, void *self)
    {
        auto *watcher = static_cast<Private *>(self);
        if (pa_context_get_state(server) == PA_CONTEXT_READY) {
            forget(pa_context_subscribe(server, PA_SUBSCRIPTION_MASK_SINK, nullptr, nullptr));
            watcher->tell(watcher->wasLost);
        } else if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(server))) {
            watcher->tell(!watcher->wasLost);
            watcher->wasLost = true;
            QMetaObject::invokeMethod(
                &watcher->owner, [watcher] { watcher->reconnect.start(); }, Qt::QueuedConnection);
        }
    }

    // A change of a device is mostly one of its volume: only coming and going counts.
    static void onEvent(pa_context * /*server*/, pa_subscription_event_type_t type, std::uint32_t /*index*/, void *self)
    {
        const auto kind = static_cast<unsigned>(type) & static_cast<unsigned>(PA_SUBSCRIPTION_EVENT_TYPE_MASK);
        static_cast<Private *>(self)->tell(kind != static_cast<unsigned>(PA_SUBSCRIPTION_EVENT_CHANGE));
    }

    void tell(bool hasChanged)
    {
        if (hasChanged)
            QMetaObject::invokeMethod(&owner, &DeviceWatcher::devicesChanged, Qt::QueuedConnection);
    }

    DeviceWatcher &owner;
    QTimer reconnect;
    std::unique_ptr<pa_threaded_mainloop, StopLoop> loop;
    pa_context *context = nullptr; // guarded by the loop's lock
    bool wasLost = false;          // loop's thread only
};

DeviceWatcher::DeviceWatcher(QObject *parent) : QObject(parent), d_(std::make_unique<Private>(*this)) {}

DeviceWatcher::~DeviceWatcher() = default;

} // namespace host
