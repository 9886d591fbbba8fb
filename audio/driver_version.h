// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace ostra::audio {

/// Version of the driver behind `deviceName`, from the host's management service: the first complete row whose description
/// or friendly name contains the device name or is contained in it, case-sensitively. The empty text is contained in every
/// text. Empty when nothing matches or the service is missing or fails. One query a call, blocking.
std::string lookUpDriverVersion(const std::string &deviceName);

} // namespace ostra::audio
