// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"
#include "tools/field-check/endpoint.h"

#include <atomic>

namespace field_check {

namespace {

constexpr std::chrono::seconds listing{60};

/// Counts what the system tells. Lives on the stack of the check, so nobody's count frees it.
class Notices final : public IMMNotificationClient {
public:
    long changes() const { return changes_.load(); }

    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void **object) override
    {
        *object = this;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnDeviceStateChanged(LPCWSTR, DWORD) override { return count(); }
    HRESULT STDMETHODCALLTYPE OnDeviceAdded(LPCWSTR) override { return count(); }
    HRESULT STDMETHODCALLTYPE OnDeviceRemoved(LPCWSTR) override { return count(); }
    HRESULT STDMETHODCALLTYPE OnDefaultDeviceChanged(EDataFlow, ERole, LPCWSTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPropertyValueChanged(LPCWSTR, const PROPERTYKEY) override { return S_OK; }

private:
    HRESULT count()
    {
        ++changes_;
        return S_OK;
    }
    std::atomic<long> changes_ = 0;
};

std::string listDevices(const Surroundings &surroundings, const wchar_t *output)
{
    runToEnd(L'"' + (surroundings.program / L"TamrexDiagnosticsCLI.exe").wstring() + L"\" list", surroundings.scratch,
             surroundings.results / output, listing);
    return contents(surroundings.results / output);
}

} // namespace

Finding checkHotPlug(const Surroundings &surroundings)
{
    Finding finding{"hot-plug", "A device that comes or goes is noticed and listed.", {}, {}, {}};
    const ComApartment apartment;
    ComPointer<IMMDeviceEnumerator> list;
    Notices notices;
    if (!surroundings.isSomebodyThere || FAILED(openEndpointList(list)) ||
        FAILED(list->RegisterEndpointNotificationCallback(&notices))) {
        finding.conclude(State::notPossible, "Nobody is there to plug a device, or the system tells nothing.");
        return finding;
    }
    const std::string before = listDevices(surroundings, L"devices-before.txt");
    const bool isDone = ask(surroundings, "Plug in a headset or USB sound card, or pull one out, and wait three seconds.");
    const std::string after = listDevices(surroundings, L"devices-after.txt");
    list->UnregisterEndpointNotificationCallback(&notices);
    finding.add("notices", notices.changes());
    if (!isDone)
        finding.conclude(State::notPossible, "Left out.");
    else if (notices.changes() > 0 && before != after)
        finding.conclude(State::proved, "The system told of it and the module lists other devices.");
    else
        finding.conclude(State::failed, "The device lists before and after are the same, or nothing was told.");
    return finding;
}

} // namespace field_check
