// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/com_owner_windows.h"

#include <mmdeviceapi.h>

#include <endpointvolume.h>

#include <string>

namespace field_check {

using ostra::audio::ComApartment;
using ostra::audio::ComPointer;

/// The system's list of endpoints. The calling thread must be in an apartment.
HRESULT openEndpointList(ComPointer<IMMDeviceEnumerator> &list);
/// The default endpoint of that direction.
HRESULT openDefaultEndpoint(EDataFlow direction, ComPointer<IMMDevice> &endpoint);
/// Its volume control.
HRESULT openVolume(IMMDevice &endpoint, ComPointer<IAudioEndpointVolume> &volume);
/// The name that the system shows, UTF-8; empty when it has none.
std::string friendlyName(IMMDevice &endpoint);
/// The name of the default endpoint; empty when there is none.
std::string defaultEndpointName(EDataFlow direction);

} // namespace field_check
