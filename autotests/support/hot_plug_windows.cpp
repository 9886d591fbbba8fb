// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/hot_plug_windows.h"

#include "audio/endpoints/com_owner_windows.h"
#include "audio/endpoints/core_audio_ids_windows.h"

#include <windows.h>

#include <mmdeviceapi.h>
#include <objbase.h>
#include <propsys.h>

#include <atomic>
#include <bit>
#include <optional>
#include <thread>

namespace hot_plug {

using ostra::audio::ComPointer;
using ostra::audio::CoTaskText;

struct HotPlug::Core {
    std::atomic<IMMNotificationClient *> client = nullptr;
    std::atomic<long> references = 0;
    DWORD classCookie = 0;
    bool isEntered = false;
};

namespace {

using Core = HotPlug::Core;

HotPlug::Core *current = nullptr;

// Past the class object that stands before it.
HRESULT createReal(IMMDeviceEnumerator **enumerator)
{
    const HMODULE library = LoadLibraryExW(L"mmdevapi.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32); // stays
    using GetClassObject = HRESULT(STDAPICALLTYPE *)(REFCLSID, REFIID, void **);
    const auto getClassObject = std::bit_cast<GetClassObject>(GetProcAddress(library, "DllGetClassObject"));
    if (getClassObject == nullptr)
        return E_FAIL;
    ComPointer<IClassFactory> factory;
    const HRESULT result = getClassObject(ostra::audio::deviceEnumeratorClass, IID_IClassFactory, factory.receiveAny());
    if (FAILED(result))
        return result;
    return factory->CreateInstance(nullptr, ostra::audio::deviceEnumeratorId, reinterpret_cast<void **>(enumerator));
}

class Enumerator final : public IMMDeviceEnumerator {
public:
    explicit Enumerator(Core &core) : core_(core) { ++core_.references; }
    Enumerator(const Enumerator &) = delete;
    Enumerator &operator=(const Enumerator &) = delete;

    HRESULT open() { return createReal(real_.receive()); }

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override
    {
        ++core_.references;
        return ++count_;
    }
    STDMETHODIMP_(ULONG) Release() override
    {
        --core_.references;
        const ULONG left = --count_;
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHODIMP EnumAudioEndpoints(EDataFlow flow, DWORD states, IMMDeviceCollection **endpoints) override
    {
        return real_->EnumAudioEndpoints(flow, states, endpoints);
    }
    STDMETHODIMP GetDefaultAudioEndpoint(EDataFlow flow, ERole role, IMMDevice **device) override
    {
        return real_->GetDefaultAudioEndpoint(flow, role, device);
    }
    STDMETHODIMP GetDevice(LPCWSTR id, IMMDevice **device) override { return real_->GetDevice(id, device); }
    STDMETHODIMP RegisterEndpointNotificationCallback(IMMNotificationClient *client) override
    {
        core_.client = client;
        return S_OK;
    }
    STDMETHODIMP UnregisterEndpointNotificationCallback(IMMNotificationClient *client) override
    {
        if (core_.client != client)
            return E_INVALIDARG;
        core_.client = nullptr;
        return S_OK;
    }

private:
    ~Enumerator() = default;

    Core &core_;
    ComPointer<IMMDeviceEnumerator> real_;
    std::atomic<ULONG> count_ = 1;
};

// As long as the process, so not counted.
class ClassObject final : public IClassFactory {
public:
    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        const bool isKnown = id == IID_IClassFactory || id == IID_IUnknown;
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown *, REFIID id, void **object) override
    {
        *object = nullptr;
        if (id != ostra::audio::deviceEnumeratorId)
            return E_NOINTERFACE;
        auto *enumerator = new Enumerator(*current);
        const HRESULT result = enumerator->open();
        if (FAILED(result))
            enumerator->Release();
        else
            *object = enumerator;
        return result;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

ClassObject classObject;

std::wstring nameOf(IMMDevice &device)
{
    ComPointer<IPropertyStore> properties;
    PROPVARIANT value{};
    std::wstring name;
    if (SUCCEEDED(device.OpenPropertyStore(STGM_READ, properties.receive())) &&
        SUCCEEDED(properties->GetValue(ostra::audio::friendlyNameKey, &value)) && value.vt == VT_LPWSTR)
        name = value.pwszVal;
    PropVariantClear(&value);
    return name;
}

std::optional<std::wstring> idOf(const std::wstring &name)
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    ComPointer<IMMDeviceCollection> endpoints;
    UINT count = 0;
    if (FAILED(createReal(enumerator.receive())) ||
        FAILED(enumerator->EnumAudioEndpoints(eAll, DEVICE_STATE_ACTIVE, endpoints.receive())) ||
        FAILED(endpoints->GetCount(&count)))
        return std::nullopt;
    for (UINT index = 0; index < count; ++index) {
        ComPointer<IMMDevice> device;
        CoTaskText id;
        if (SUCCEEDED(endpoints->Item(index, device.receive())) && nameOf(*device.get()) == name &&
            SUCCEEDED(device->GetId(id.receive())))
            return std::wstring(id.view());
    }
    return std::nullopt;
}

bool tell(const Core &core, const std::wstring &name, DWORD state)
{
    const std::optional<std::wstring> id = idOf(name);
    IMMNotificationClient *client = core.client;
    if (!id || client == nullptr)
        return false;
    HRESULT result = E_FAIL;
    std::thread system([&] {
        if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)))
            return;
        result = client->OnDeviceStateChanged(id->c_str(), state);
        CoUninitialize();
    });
    system.join();
    return SUCCEEDED(result);
}

} // namespace

HotPlug::HotPlug() : core_(std::make_unique<Core>())
{
    current = core_.get();
    // Where this fails nobody is heard, which a test sees.
    core_->isEntered = SUCCEEDED(CoInitialize(nullptr));
    if (core_->isEntered)
        CoRegisterClassObject(ostra::audio::deviceEnumeratorClass, &classObject, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                              &core_->classCookie);
}

HotPlug::~HotPlug()
{
    if (core_->classCookie != 0)
        CoRevokeClassObject(core_->classCookie);
    if (core_->isEntered)
        CoUninitialize();
    if (current == core_.get())
        current = nullptr;
}

bool HotPlug::isHeard() const { return core_->client != nullptr; }
long HotPlug::referenceCount() const { return core_->references; }
bool HotPlug::unplug(const std::wstring &name) { return tell(*core_, name, DEVICE_STATE_UNPLUGGED); }
bool HotPlug::plug(const std::wstring &name) { return tell(*core_, name, DEVICE_STATE_ACTIVE); }

} // namespace hot_plug
