// SPDX-License-Identifier: Apache-2.0
#include "host/gui/device_watcher.h"

#include "audio/endpoints/com_owner_windows.h"
#include "audio/endpoints/core_audio_ids_windows.h"

#include <QMetaObject>

#include <windows.h>

#include <mmdeviceapi.h>

namespace host {

namespace {

// Spelled out: the import libraries of some compilers do not hold it.
constexpr IID notificationClientId{0x7991EEC9, 0x7E89, 0x4D85, {0x83, 0x90, 0x6C, 0x70, 0x3C, 0xEC, 0x60, 0xC0}};

/// Hears of devices on threads of Core Audio. Lives within its watcher, so references to it are not counted: the enumerator
/// gives its own back before `UnregisterEndpointNotificationCallback` returns.
class Listener final : public IMMNotificationClient {
public:
    explicit Listener(DeviceWatcher &owner) : owner_(owner) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void **object) override
    {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) != 0 || IsEqualIID(id, notificationClientId) != 0;
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE OnDeviceStateChanged(LPCWSTR /*id*/, DWORD /*state*/) override { return tell(); }
    HRESULT STDMETHODCALLTYPE OnDeviceAdded(LPCWSTR /*id*/) override { return tell(); }
    HRESULT STDMETHODCALLTYPE OnDeviceRemoved(LPCWSTR /*id*/) override { return tell(); }
    HRESULT STDMETHODCALLTYPE OnDefaultDeviceChanged(EDataFlow /*flow*/, ERole /*role*/, LPCWSTR /*id*/) override
    {
        return S_OK; // the list does not tell which one is the default
    }
    HRESULT STDMETHODCALLTYPE OnPropertyValueChanged(LPCWSTR /*id*/, const PROPERTYKEY /*key*/) override { return S_OK; }

private:
    HRESULT tell()
    {
        QMetaObject::invokeMethod(&owner_, &DeviceWatcher::devicesChanged, Qt::QueuedConnection);
        return S_OK;
    }

    DeviceWatcher &owner_;
};

} // namespace

struct DeviceWatcher::Private {
    explicit Private(DeviceWatcher &owner) : listener(owner)
    {
        if (apartment.isUsable() && SUCCEEDED(CoCreateInstance(ostra::audio::deviceEnumeratorClass, nullptr, CLSCTX_ALL,
                                                               ostra::audio::deviceEnumeratorId, enumerator.receiveAny())))
            isRegistered = SUCCEEDED(enumerator->RegisterEndpointNotificationCallback(&listener));
    }

    ~Private()
    {
        if (isRegistered)
            enumerator->UnregisterEndpointNotificationCallback(&listener);
    }
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    ostra::audio::ComApartment apartment;
    Listener listener;
    ostra::audio::ComPointer<IMMDeviceEnumerator> enumerator;
    bool isRegistered = false;
};

DeviceWatcher::DeviceWatcher(QObject *parent) : QObject(parent), d_(std::make_unique<Private>(*this)) {}

DeviceWatcher::~DeviceWatcher() = default;

} // namespace host
