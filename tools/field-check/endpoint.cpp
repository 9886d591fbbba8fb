// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/endpoint.h"

#include "audio/endpoints/core_audio_ids_windows.h"
#include "tools/field-check/surroundings.h"

namespace field_check {

HRESULT openEndpointList(ComPointer<IMMDeviceEnumerator> &list)
{
    return CoCreateInstance(ostra::audio::deviceEnumeratorClass, nullptr, CLSCTX_ALL, ostra::audio::deviceEnumeratorId,
                            list.receiveAny());
}

HRESULT openDefaultEndpoint(EDataFlow direction, ComPointer<IMMDevice> &endpoint)
{
    ComPointer<IMMDeviceEnumerator> list;
    const HRESULT result = openEndpointList(list);
    return FAILED(result) ? result : list->GetDefaultAudioEndpoint(direction, eConsole, endpoint.receive());
}

HRESULT openVolume(IMMDevice &endpoint, ComPointer<IAudioEndpointVolume> &volume)
{
    return endpoint.Activate(ostra::audio::endpointVolumeId, CLSCTX_ALL, nullptr, volume.receiveAny());
}

std::string friendlyName(IMMDevice &endpoint)
{
    ComPointer<IPropertyStore> properties;
    if (FAILED(endpoint.OpenPropertyStore(STGM_READ, properties.receive())))
        return {};
    PROPVARIANT value;
    PropVariantInit(&value);
    std::string name;
    if (SUCCEEDED(properties->GetValue(ostra::audio::friendlyNameKey, &value)) && value.vt == VT_LPWSTR)
        name = narrow(value.pwszVal);
    PropVariantClear(&value);
    return name;
}

std::string defaultEndpointName(EDataFlow direction)
{
    const ComApartment apartment;
    ComPointer<IMMDevice> endpoint;
    return SUCCEEDED(openDefaultEndpoint(direction, endpoint)) ? friendlyName(*endpoint.get()) : std::string();
}

} // namespace field_check
