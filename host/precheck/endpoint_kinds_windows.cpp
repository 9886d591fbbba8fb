// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/endpoint_kinds_windows.h"

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/visit_endpoints_windows.h"
#include "host/precheck/device_names.h"

#include <propidl.h>
#include <propsys.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace host {

namespace {

// Spelled out: the import libraries of some compilers do not hold them.
constexpr IID endpointInterfaceId{0x1BE09788, 0x6894, 0x4089, {0x85, 0x86, 0x9A, 0x2A, 0x6C, 0x26, 0x5A, 0xC5}};
constexpr PROPERTYKEY enumeratorNameKey{{0xA45C254E, 0xDF1C, 0x4EFD, {0x80, 0x20, 0x67, 0xD1, 0x46, 0xA8, 0x50, 0xE0}}, 24};

struct Kind {
    std::u16string id;
    bool isInput;
    bool isRootEnumerated;
};

bool isInput(IMMDevice *device)
{
    ostra::audio::ComPointer<IMMEndpoint> endpoint;
    EDataFlow flow = eRender;
    return SUCCEEDED(device->QueryInterface(endpointInterfaceId, endpoint.receiveAny())) &&
           SUCCEEDED(endpoint->GetDataFlow(&flow)) && flow == eCapture;
}

bool isRootEnumerated(IMMDevice *device)
{
    ostra::audio::ComPointer<IPropertyStore> properties;
    if (FAILED(device->OpenPropertyStore(STGM_READ, properties.receive())))
        return false;
    PROPVARIANT value;
    PropVariantInit(&value);
    const bool isRoot = SUCCEEDED(properties->GetValue(enumeratorNameKey, &value)) && value.vt == VT_LPWSTR &&
                        value.pwszVal != nullptr && std::wstring_view(value.pwszVal) == L"ROOT";
    PropVariantClear(&value);
    return isRoot;
}

} // namespace

std::optional<QList<EndpointKind>> readEndpointKinds()
{
    std::vector<Kind> kinds;
    const int failure = ostra::audio::runPass([&kinds](IMMDevice *device, UINT) {
        ostra::audio::CoTaskText id;
        if (SUCCEEDED(device->GetId(id.receive())))
            kinds.push_back({ostra::audio::unitsOf(id.view().substr(0, ostra::audio::idUnitLimit)), isInput(device),
                             isRootEnumerated(device)});
        return S_OK;
    });
    ostra::audio::EndpointNames names;
    if (failure != 0 || readEndpointNames(names) != 0)
        return std::nullopt;
    DeviceNames outputs;
    DeviceNames inputs;
    QList<EndpointKind> endpoints;
    for (const ostra::audio::EndpointName &name : names) {
        const auto kind = std::find_if(kinds.begin(), kinds.end(), [&name](const Kind &one) { return one.id == name.id; });
        if (kind == kinds.end())
            continue;
        const QString description = QString::fromStdString(name.description);
        endpoints.append({QString::fromStdU16String(name.id), (kind->isInput ? inputs : outputs).next(description),
                          kind->isInput, kind->isRootEnumerated});
    }
    return endpoints;
}

bool isUnderWine()
{
    const HMODULE library = GetModuleHandleW(L"ntdll.dll");
    return library != nullptr && GetProcAddress(library, "wine_get_version") != nullptr;
}

} // namespace host
