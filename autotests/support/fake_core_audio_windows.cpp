// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_core_audio_windows.h"

#include "audio/endpoints/core_audio_ids_windows.h"

#include <objbase.h>

#include <endpointvolume.h>
#include <mmdeviceapi.h>
#include <objidl.h>
#include <propsys.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <set>

namespace fake_core_audio {

struct FakeCoreAudio::Core {
    FakeCoreAudio *owner = nullptr;
    std::optional<std::size_t> failingCall;
    std::size_t callCount = 0;
    HRESULT failure = E_FAIL;
    long references = 0;
    std::set<void *> ids;
    int apartmentEntries = 0;
    long referencesAtLeaving = 0;
    std::vector<std::string> complaints;
    IMMNotificationClient *client = nullptr;

    DWORD classCookie = 0;
    ULARGE_INTEGER spyCookie{};

    HRESULT note(Call call, std::size_t endpoint = 0)
    {
        owner->events.push_back({call, endpoint});
        return callCount++ == failingCall ? failure : S_OK;
    }

    // A copy that the receiver owes to COM's allocator.
    LPWSTR handOver(const std::wstring &text)
    {
        const std::size_t byteCount = (text.size() + 1) * sizeof(wchar_t);
        const auto copy = static_cast<LPWSTR>(CoTaskMemAlloc(byteCount));
        std::memcpy(copy, text.c_str(), byteCount);
        ids.insert(copy);
        return copy;
    }

    void require(bool condition, const char *what)
    {
        if (!condition)
            complaints.emplace_back(what);
    }
};

namespace {

using Core = FakeCoreAudio::Core;

// Counts its references, each for itself and all together in the core.
template <typename Interface>
class Counted : public Interface {
public:
    explicit Counted(Core &core) : core_(core) { ++core_.references; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = nullptr;
        core_.require(false, "an interface was asked for that nobody needs");
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

protected:
    virtual ~Counted() = default;
    Core &core() const { return core_; }

private:
    Core &core_;
    ULONG count_ = 1;
};

class Volume final : public Counted<IAudioEndpointVolume> {
public:
    Volume(Core &core, std::shared_ptr<Endpoint> endpoint, std::size_t index)
        : Counted(core), endpoint_(std::move(endpoint)), index_(index)
    {}

    STDMETHODIMP GetMasterVolumeLevelScalar(float *level) override
    {
        const HRESULT result = core().note(Call::getLevel, index_);
        if (SUCCEEDED(result))
            *level = endpoint_->level;
        return result;
    }
    STDMETHODIMP SetMasterVolumeLevelScalar(float level, LPCGUID context) override
    {
        core().require(context == nullptr, "an event context came with a level");
        core().require(level >= 0.0F && level <= 1.0F, "a level is not between 0 and 1");
        const HRESULT result = core().note(Call::setLevel, index_);
        if (SUCCEEDED(result))
            endpoint_->level = level;
        return result;
    }
    STDMETHODIMP GetMute(BOOL *muted) override
    {
        const HRESULT result = core().note(Call::getMute, index_);
        if (SUCCEEDED(result))
            *muted = endpoint_->muted ? TRUE : FALSE;
        return result;
    }
    STDMETHODIMP SetMute(BOOL muted, LPCGUID context) override
    {
        core().require(context == nullptr, "an event context came with a mute state");
        const HRESULT result = core().note(Call::setMute, index_);
        if (SUCCEEDED(result))
            endpoint_->muted = muted != FALSE;
        return result;
    }

    STDMETHODIMP RegisterControlChangeNotify(IAudioEndpointVolumeCallback *) override { return needless(); }
    STDMETHODIMP UnregisterControlChangeNotify(IAudioEndpointVolumeCallback *) override { return needless(); }
    STDMETHODIMP GetChannelCount(UINT *) override { return needless(); }
    STDMETHODIMP SetMasterVolumeLevel(float, LPCGUID) override { return needless(); }
    STDMETHODIMP GetMasterVolumeLevel(float *) override { return needless(); }
    STDMETHODIMP SetChannelVolumeLevel(UINT, float, LPCGUID) override { return needless(); }
    STDMETHODIMP SetChannelVolumeLevelScalar(UINT, float, LPCGUID) override { return needless(); }
    STDMETHODIMP GetChannelVolumeLevel(UINT, float *) override { return needless(); }
    STDMETHODIMP GetChannelVolumeLevelScalar(UINT, float *) override { return needless(); }
    STDMETHODIMP GetVolumeStepInfo(UINT *, UINT *) override { return needless(); }
    STDMETHODIMP VolumeStepUp(LPCGUID) override { return needless(); }
    STDMETHODIMP VolumeStepDown(LPCGUID) override { return needless(); }
    STDMETHODIMP QueryHardwareSupport(DWORD *) override { return needless(); }
    STDMETHODIMP GetVolumeRange(float *, float *, float *) override { return needless(); }

private:
    HRESULT needless()
    {
        core().require(false, "a volume was asked for what nobody needs");
        return E_NOTIMPL;
    }

    std::shared_ptr<Endpoint> endpoint_;
    std::size_t index_;
};

class Properties final : public Counted<IPropertyStore> {
public:
    Properties(Core &core, std::shared_ptr<Endpoint> endpoint, std::size_t index)
        : Counted(core), endpoint_(std::move(endpoint)), index_(index)
    {}

    STDMETHODIMP GetValue(REFPROPERTYKEY key, PROPVARIANT *value) override
    {
        core().require(key.fmtid == ostra::audio::friendlyNameKey.fmtid && key.pid == 14, "another property was asked for");
        const HRESULT result = core().note(Call::getProperty, index_);
        if (FAILED(result) || !endpoint_->name)
            return result;
        value->pwszVal = core().handOver(*endpoint_->name);
        value->vt = VT_LPWSTR;
        return S_OK;
    }
    STDMETHODIMP GetCount(DWORD *) override { return E_NOTIMPL; }
    STDMETHODIMP GetAt(DWORD, PROPERTYKEY *) override { return E_NOTIMPL; }
    STDMETHODIMP SetValue(REFPROPERTYKEY, REFPROPVARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP Commit() override { return E_NOTIMPL; }

private:
    std::shared_ptr<Endpoint> endpoint_;
    std::size_t index_;
};

class Device final : public Counted<IMMDevice> {
public:
    Device(Core &core, std::shared_ptr<Endpoint> endpoint, std::size_t index)
        : Counted(core), endpoint_(std::move(endpoint)), index_(index)
    {}

    STDMETHODIMP Activate(REFIID id, DWORD context, PROPVARIANT *parameters, void **object) override
    {
        *object = nullptr;
        core().require(id == ostra::audio::endpointVolumeId, "an endpoint was activated as something else");
        core().require(context == 23, "an endpoint was activated in other contexts than all");
        core().require(parameters == nullptr, "an endpoint was activated with parameters");
        const HRESULT result = core().note(Call::activate, index_);
        if (SUCCEEDED(result))
            *object = new Volume(core(), endpoint_, index_);
        return result;
    }
    STDMETHODIMP GetId(LPWSTR *id) override
    {
        *id = nullptr;
        const HRESULT result = core().note(Call::getId, index_);
        if (FAILED(result) || !endpoint_->id)
            return result;
        *id = core().handOver(*endpoint_->id);
        return S_OK;
    }
    STDMETHODIMP OpenPropertyStore(DWORD access, IPropertyStore **properties) override
    {
        *properties = nullptr;
        core().require(access == STGM_READ, "an endpoint's properties were opened for more than reading");
        const HRESULT result = core().note(Call::openProperties, index_);
        if (SUCCEEDED(result))
            *properties = new Properties(core(), endpoint_, index_);
        return result;
    }
    STDMETHODIMP GetState(DWORD *) override { return E_NOTIMPL; }

private:
    std::shared_ptr<Endpoint> endpoint_;
    std::size_t index_;
};

class Collection final : public Counted<IMMDeviceCollection> {
public:
    explicit Collection(Core &core) : Counted(core), endpoints_(core.owner->endpoints) {}

    STDMETHODIMP GetCount(UINT *count) override
    {
        const HRESULT result = core().note(Call::getCount);
        if (SUCCEEDED(result))
            *count = static_cast<UINT>(endpoints_.size());
        return result;
    }
    STDMETHODIMP Item(UINT index, IMMDevice **device) override
    {
        *device = nullptr;
        if (index >= endpoints_.size())
            return E_INVALIDARG;
        const HRESULT result = core().note(Call::item, index);
        if (SUCCEEDED(result))
            *device = new Device(core(), endpoints_[index], index);
        return result;
    }

private:
    std::vector<std::shared_ptr<Endpoint>> endpoints_;
};

class Enumerator final : public Counted<IMMDeviceEnumerator> {
public:
    using Counted::Counted;

    STDMETHODIMP EnumAudioEndpoints(EDataFlow flow, DWORD states, IMMDeviceCollection **endpoints) override
    {
        *endpoints = nullptr;
        core().require(flow == 2, "not playback and capture endpoints were listed");
        core().require(states == 1, "other endpoints than active ones were listed");
        const HRESULT result = core().note(Call::enumAudioEndpoints);
        if (SUCCEEDED(result))
            *endpoints = new Collection(core());
        return result;
    }
    STDMETHODIMP GetDefaultAudioEndpoint(EDataFlow, ERole, IMMDevice **) override { return E_NOTIMPL; }
    STDMETHODIMP GetDevice(LPCWSTR, IMMDevice **) override { return E_NOTIMPL; }
    STDMETHODIMP RegisterEndpointNotificationCallback(IMMNotificationClient *client) override
    {
        core().require(core().client == nullptr, "a second client asked for notices");
        core().client = client;
        return S_OK;
    }
    STDMETHODIMP UnregisterEndpointNotificationCallback(IMMNotificationClient *client) override
    {
        core().require(core().client == client, "a client left that had not asked for notices");
        core().client = nullptr;
        return S_OK;
    }
};

// The fake's own fixtures below live as long as the process and are not counted.
template <typename Interface>
class Fixture : public Interface {
public:
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    Core *core = nullptr;

protected:
    ~Fixture() = default;

    HRESULT answer(REFIID asked, REFIID own, void **object)
    {
        const bool isKnown = asked == own || asked == IID_IUnknown;
        *object = isKnown ? static_cast<Interface *>(this) : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
};

class ClassObject final : public Fixture<IClassFactory> {
public:
    STDMETHODIMP QueryInterface(REFIID id, void **object) override { return answer(id, IID_IClassFactory, object); }
    STDMETHODIMP CreateInstance(IUnknown *, REFIID id, void **object) override
    {
        *object = nullptr;
        core->require(id == ostra::audio::deviceEnumeratorId, "the enumerator was created as something else");
        const HRESULT result = core->note(Call::createEnumerator);
        if (SUCCEEDED(result))
            *object = new Enumerator(*core);
        return result;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

class ApartmentSpy final : public Fixture<IInitializeSpy> {
public:
    STDMETHODIMP QueryInterface(REFIID id, void **object) override { return answer(id, IID_IInitializeSpy, object); }
    STDMETHODIMP PreInitialize(DWORD, DWORD) override { return S_OK; }
    STDMETHODIMP PostInitialize(HRESULT result, DWORD, DWORD) override
    {
        if (SUCCEEDED(result))
            ++core->apartmentEntries;
        return result;
    }
    STDMETHODIMP PreUninitialize(DWORD) override
    {
        core->referencesAtLeaving = std::max(core->referencesAtLeaving, core->references);
        return S_OK;
    }
    STDMETHODIMP PostUninitialize(DWORD) override
    {
        --core->apartmentEntries;
        return S_OK;
    }
};

// Sees what goes back to COM's allocator; changes nothing.
class AllocatorSpy final : public Fixture<IMallocSpy> {
public:
    STDMETHODIMP QueryInterface(REFIID id, void **object) override { return answer(id, IID_IMallocSpy, object); }
    STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T byteCount) override { return byteCount; }
    STDMETHODIMP_(void *) PostAlloc(void *block) override { return block; }
    STDMETHODIMP_(void *) PreFree(void *block, BOOL) override
    {
        core->ids.erase(block);
        return block;
    }
    STDMETHODIMP_(void) PostFree(BOOL) override {}
    STDMETHODIMP_(SIZE_T) PreRealloc(void *block, SIZE_T byteCount, void **newBlock, BOOL) override
    {
        *newBlock = block;
        return byteCount;
    }
    STDMETHODIMP_(void *) PostRealloc(void *block, BOOL) override { return block; }
    STDMETHODIMP_(void *) PreGetSize(void *block, BOOL) override { return block; }
    STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T byteCount, BOOL) override { return byteCount; }
    STDMETHODIMP_(void *) PreDidAlloc(void *block, BOOL) override { return block; }
    STDMETHODIMP_(int) PostDidAlloc(void *, BOOL, int didAlloc) override { return didAlloc; }
    STDMETHODIMP_(void) PreHeapMinimize() override {}
    STDMETHODIMP_(void) PostHeapMinimize() override {}
};

ClassObject classObject;
ApartmentSpy apartmentSpy;
AllocatorSpy allocatorSpy;

void bind(Core *core)
{
    classObject.core = core;
    apartmentSpy.core = core;
    allocatorSpy.core = core;
}

} // namespace

const char *nameOf(Call call)
{
    constexpr std::array names{"create the enumerator",
                               "EnumAudioEndpoints",
                               "GetCount",
                               "Item",
                               "GetId",
                               "Activate",
                               "get the level",
                               "set the level",
                               "GetMute",
                               "SetMute",
                               "OpenPropertyStore",
                               "GetValue"};
    return names.at(static_cast<std::size_t>(call));
}

FakeCoreAudio::FakeCoreAudio() : core_(std::make_unique<Core>())
{
    core_->owner = this;
    bind(core_.get());
    const bool isReady = SUCCEEDED(CoInitialize(nullptr)) &&
                         SUCCEEDED(CoRegisterClassObject(ostra::audio::deviceEnumeratorClass, &classObject,
                                                         CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &core_->classCookie)) &&
                         SUCCEEDED(CoRegisterMallocSpy(&allocatorSpy)) &&
                         SUCCEEDED(CoRegisterInitializeSpy(&apartmentSpy, &core_->spyCookie));
    core_->require(isReady, "the fake could not be registered");
}

FakeCoreAudio::~FakeCoreAudio()
{
    CoRevokeInitializeSpy(core_->spyCookie);
    CoRevokeMallocSpy();
    CoRevokeClassObject(core_->classCookie);
    CoUninitialize();
    bind(nullptr);
}

void FakeCoreAudio::failAt(std::size_t number, HRESULT code)
{
    core_->callCount = 0;
    core_->failingCall = number;
    core_->failure = code;
}

void FakeCoreAudio::add(std::optional<std::wstring> id, float level, bool muted)
{
    endpoints.push_back(std::make_shared<Endpoint>(Endpoint{std::move(id), level, muted}));
}

std::vector<Endpoint> FakeCoreAudio::states() const
{
    std::vector<Endpoint> states;
    for (const auto &endpoint : endpoints)
        states.push_back(*endpoint);
    return states;
}

std::vector<Call> FakeCoreAudio::calls() const
{
    std::vector<Call> calls;
    for (const Event &event : events)
        calls.push_back(event.call);
    return calls;
}

long FakeCoreAudio::referenceCount() const { return core_->references; }
std::size_t FakeCoreAudio::outstandingIdCount() const { return core_->ids.size(); }
int FakeCoreAudio::openApartmentCount() const { return core_->apartmentEntries; }
long FakeCoreAudio::referencesAtLeaving() const { return core_->referencesAtLeaving; }
IMMNotificationClient *FakeCoreAudio::client() const { return core_->client; }

const std::vector<std::string> &FakeCoreAudio::complaints() const { return core_->complaints; }

} // namespace fake_core_audio
