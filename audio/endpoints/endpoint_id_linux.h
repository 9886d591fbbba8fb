// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace ostra::audio {

/// The id of the sink or source with the sound server's `name`. It is compared and never shown, so each byte becomes a unit of
/// its own, whatever its encoding.
inline std::u16string endpointIdOf(std::string_view name)
{
    std::u16string id;
    id.reserve(name.size());
    for (const char byte : name)
        id.push_back(static_cast<unsigned char>(byte));
    return id;
}

} // namespace ostra::audio
