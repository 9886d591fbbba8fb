// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_volume.h"

#include "audio/endpoints/visit_endpoints_windows.h"

#include <endpointvolume.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace ostra::audio {

namespace {

HRESULT activateVolume(IMMDevice *endpoint, ComPointer<IAudioEndpointVolume> &volume)
{
    return endpoint->Activate(endpointVolumeId, CLSCTX_ALL, nullptr, volume.receiveAny());
}

HRESULT readLevelAndMute(IMMDevice *endpoint, EndpointVolume &record)
{
    ComPointer<IAudioEndpointVolume> volume;
    HRESULT result = activateVolume(endpoint, volume);
    if (SUCCEEDED(result))
        result = volume->GetMasterVolumeLevelScalar(&record.level);
    BOOL muted = FALSE;
    if (SUCCEEDED(result))
        result = volume->GetMute(&muted);
    record.muted = muted != FALSE;
    return result;
}

// A microphone or loudspeaker whose id cannot be told is still raised, and restored by its position: so this never fails.
std::u16string readId(IMMDevice *endpoint)
{
    CoTaskText id;
    return SUCCEEDED(endpoint->GetId(id.receive())) ? unitsOf(id.view().substr(0, idUnitLimit)) : std::u16string();
}

const EndpointVolume *chooseRecordFor(IMMDevice *endpoint, const EndpointVolumes &list, UINT position)
{
    CoTaskText id;
    if (FAILED(endpoint->GetId(id.receive())) || !id.isPresent())
        return nullptr;
    // No memory of our own is asked for: what is not put back stays loud. One unit more than a record keeps tells a longer id.
    std::array<char16_t, idUnitLimit + 1> units{};
    const std::size_t length = std::min(id.view().size(), units.size());
    std::copy_n(id.view().begin(), length, units.begin());
    return chooseRecord(list, {units.data(), length}, position);
}

HRESULT applyRecord(IMMDevice *endpoint, const EndpointVolume &record)
{
    ComPointer<IAudioEndpointVolume> volume;
    HRESULT result = activateVolume(endpoint, volume);
    if (SUCCEEDED(result))
        result = volume->SetMasterVolumeLevelScalar(record.level, nullptr);
    BOOL muted = FALSE;
    if (SUCCEEDED(result))
        result = volume->GetMute(&muted);
    if (FAILED(result) || (muted != FALSE) == record.muted)
        return result;
    return volume->SetMute(record.muted ? TRUE : FALSE, nullptr);
}

} // namespace

int readEndpointVolumes(EndpointVolumes &list) noexcept
{
    return runPass([&list](IMMDevice *endpoint, UINT) {
        EndpointVolume record;
        const HRESULT result = readLevelAndMute(endpoint, record);
        if (FAILED(result))
            return result;
        record.id = readId(endpoint);
        list.push_back(std::move(record));
        return S_OK;
    });
}

int applyEndpointVolumes(const EndpointVolumes &list) noexcept
{
    return runPass([&list](IMMDevice *endpoint, UINT position) {
        const EndpointVolume *record = chooseRecordFor(endpoint, list, position);
        return record == nullptr ? E_FAIL : applyRecord(endpoint, *record);
    });
}

} // namespace ostra::audio
