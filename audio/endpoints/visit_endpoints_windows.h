// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/com_owner_windows.h"
#include "audio/endpoints/core_audio_ids_windows.h"

#include <mmdeviceapi.h>

#include <string>
#include <string_view>

namespace ostra::audio {

inline std::u16string unitsOf(std::wstring_view text) { return {text.begin(), text.end()}; }

template <typename VisitEndpoint>
HRESULT visitAll(IMMDeviceCollection *endpoints, VisitEndpoint visit)
{
    UINT count = 0;
    HRESULT result = endpoints->GetCount(&count);
    for (UINT i = 0; SUCCEEDED(result) && i < count; ++i) {
        ComPointer<IMMDevice> endpoint;
        result = endpoints->Item(i, endpoint.receive());
        if (SUCCEEDED(result))
            result = visit(endpoint.get(), i);
    }
    return result;
}

// Every COM reference dies in here, before the pass leaves the apartment.
template <typename VisitEndpoint>
HRESULT visitActiveEndpoints(VisitEndpoint visit)
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    const HRESULT created =
        CoCreateInstance(deviceEnumeratorClass, nullptr, CLSCTX_INPROC_SERVER, deviceEnumeratorId, enumerator.receiveAny());
    if (FAILED(created))
        return created;
    ComPointer<IMMDeviceCollection> endpoints;
    const HRESULT listed = enumerator->EnumAudioEndpoints(eAll, DEVICE_STATE_ACTIVE, endpoints.receive());
    return FAILED(listed) ? listed : visitAll(endpoints.get(), visit);
}

/// One pass over the active endpoints: `visit(IMMDevice *, UINT position)` answers with an HRESULT, and a failing one ends the
/// pass. Returns 0, or 1 for any failure. Nothing is thrown through here: the result is the only way to tell a failure.
template <typename VisitEndpoint>
int runPass(VisitEndpoint visit) noexcept
try {
    const ComApartment apartment;
    return apartment.isUsable() && SUCCEEDED(visitActiveEndpoints(visit)) ? 0 : 1;
} catch (...) {
    return 1;
}

} // namespace ostra::audio
