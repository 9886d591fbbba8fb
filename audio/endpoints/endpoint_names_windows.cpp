// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_names.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/visit_endpoints_windows.h"

#include <propidl.h>
#include <propsys.h>

#include <utility>

namespace ostra::audio {

namespace {

class PropertyValue {
public:
    PropertyValue() { PropVariantInit(&value_); }
    ~PropertyValue() { PropVariantClear(&value_); }
    PropertyValue(const PropertyValue &) = delete;
    PropertyValue &operator=(const PropertyValue &) = delete;

    PROPVARIANT *receive() { return &value_; }
    /// Empty when the value is no text.
    std::wstring_view text() const
    {
        return value_.vt == VT_LPWSTR && value_.pwszVal != nullptr ? std::wstring_view(value_.pwszVal) : std::wstring_view();
    }

private:
    PROPVARIANT value_;
};

std::string toUtf8(std::wstring_view text)
{
    const int unitCount = static_cast<int>(text.size());
    const int byteCount = WideCharToMultiByte(CP_UTF8, 0, text.data(), unitCount, nullptr, 0, nullptr, nullptr);
    std::string bytes(byteCount > 0 ? static_cast<std::size_t>(byteCount) : 0, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), unitCount, bytes.data(), byteCount, nullptr, nullptr);
    return bytes;
}

std::string readDescription(IMMDevice *endpoint)
{
    ComPointer<IPropertyStore> properties;
    PropertyValue name;
    if (FAILED(endpoint->OpenPropertyStore(STGM_READ, properties.receive())) ||
        FAILED(properties->GetValue(friendlyNameKey, name.receive())))
        return {};
    return toUtf8(name.text());
}

} // namespace

int readEndpointNames(EndpointNames &list) noexcept
{
    return runPass([&list](IMMDevice *endpoint, UINT) {
        CoTaskText id;
        EndpointName name;
        if (SUCCEEDED(endpoint->GetId(id.receive())))
            name.id = unitsOf(id.view().substr(0, idUnitLimit));
        name.description = readDescription(endpoint);
        list.push_back(std::move(name));
        return S_OK;
    });
}

} // namespace ostra::audio
