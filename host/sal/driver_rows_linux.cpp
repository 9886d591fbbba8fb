// SPDX-License-Identifier: Apache-2.0
#include "host/sal/driver_rows_linux.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <utility>

namespace sal {
namespace {

constexpr std::array<std::pair<std::string_view, DriverProperty>, 3> propertyNames{{
    {"Description", DriverProperty::description},
    {"DriverVersion", DriverProperty::driverVersion},
    {"FriendlyName", DriverProperty::friendlyName},
}};

bool isSameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::optional<std::string> presentText(std::string text)
{
    if (text.empty())
        return std::nullopt;
    return text;
}

std::optional<std::string> value(DriverProperty property, const SinkFacts &sink, const CardFacts &card,
                                 const DriverVersionLookup &versionOf)
{
    switch (property) {
    case DriverProperty::description:
        return presentText(sink.description);
    case DriverProperty::driverVersion:
        return presentText(versionOf(card.alsaCard));
    case DriverProperty::friendlyName:
        return presentText(card.description);
    }
    return std::nullopt;
}

const CardFacts *cardOf(const SinkFacts &sink, const std::vector<CardFacts> &cards)
{
    if (!sink.card)
        return nullptr;
    const auto found = std::ranges::find(cards, *sink.card, &CardFacts::index);
    return found == cards.end() ? nullptr : &*found;
}

} // namespace

std::optional<DriverProperty> driverProperty(std::string_view name)
{
    for (const auto &[known, property] : propertyNames) {
        if (isSameName(known, name))
            return property;
    }
    return std::nullopt;
}

std::vector<CimRow> driverRows(const SoundFacts &facts, const DriverVersionLookup &versionOf,
                               std::span<const DriverProperty> properties)
{
    std::vector<CimRow> rows;
    for (const SinkFacts &sink : facts.sinks) {
        const CardFacts *card = cardOf(sink, facts.cards);
        if (card == nullptr)
            continue;
        CimRow row;
        for (const DriverProperty property : properties)
            row.push_back(value(property, sink, *card, versionOf));
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace sal
