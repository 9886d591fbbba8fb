// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/sal.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sal {

/// What the sound server says of a playback device. `card` is the server's number of the card it belongs to, none for a device
/// that exists in software only.
struct SinkFacts {
    std::string description;
    std::optional<std::uint32_t> card;
};

/// What the sound server says of a sound card. `alsaCard` is the kernel's number of it, none for a card that the kernel's sound
/// system does not drive (Bluetooth).
struct CardFacts {
    std::uint32_t index = 0;
    std::string description;
    std::optional<std::uint32_t> alsaCard;
};

/// Everything that one look at the sound server found, in the server's order.
struct SoundFacts {
    std::vector<SinkFacts> sinks;
    std::vector<CardFacts> cards;
};

enum class DriverProperty { description, driverVersion, friendlyName };

/// The property of that name; none for a name that the class does not have here. Names are compared as WMI compares them,
/// without regard to ASCII case.
std::optional<DriverProperty> driverProperty(std::string_view name);

/// Gives the version of the driver of the card with that kernel number, empty when it is unknown.
using DriverVersionLookup = std::function<std::string(std::optional<std::uint32_t> alsaCard)>;

/// One row for each sink that belongs to a card: the sink's description, the driver's version, the card's description, as asked
/// for in `properties`. An empty text is reported as absent: readers match devices by substring, and an empty text is part of
/// every name.
std::vector<CimRow> driverRows(const SoundFacts &facts, const DriverVersionLookup &versionOf,
                               std::span<const DriverProperty> properties);

} // namespace sal
