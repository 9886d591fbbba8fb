// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace ostra {

/// Identity of a catalogue object: diagnostic, test, resource object or component manager.
///
/// Two identities are compared by `key` alone. The fields keep the low 24 bits of category and index; the key takes both
/// unmasked, so an overlong category overlaps the module number: (15, 0x01000001, 2) and (15, 1, 2) share one key.
struct EntityId {
    static constexpr std::uint32_t fieldMask = 0xFFFFFFU; ///< the bits that the fields keep
    static constexpr unsigned fieldBits = 24;             ///< how far the key shifts

    /// Fills all four fields.
    constexpr EntityId(std::uint16_t moduleNumber, std::uint32_t categoryNumber, std::uint32_t indexNumber) noexcept
        : module(moduleNumber), category(categoryNumber & fieldMask), index(indexNumber & fieldMask),
          key((((std::uint64_t{moduleNumber} << fieldBits) | categoryNumber) << fieldBits) | indexNumber)
    {}

    /// By `key` alone.
    friend constexpr bool operator==(const EntityId &left, const EntityId &right) noexcept { return left.key == right.key; }
    /// By `key` alone.
    friend constexpr bool operator<(const EntityId &left, const EntityId &right) noexcept { return left.key < right.key; }

    std::uint16_t module;   ///< module number, 15 for this module
    std::uint32_t category; ///< 24 bits: 0 for module-level objects, 1 for the diagnostic and its tests
    std::uint32_t index;    ///< 24 bits: running number within the category
    std::uint64_t key;      ///< packed form
};

namespace identities {
inline constexpr EntityId componentManager{15, 0, 0};
inline constexpr EntityId resource{15, 0, 0};
inline constexpr EntityId audioDiagnostic{15, 1, 0};
inline constexpr EntityId audioPlaybackTest{15, 1, 1};
inline constexpr EntityId microphoneInteractiveTest{15, 1, 2};
inline constexpr EntityId unassignedTest{15, 1, 3}; ///< reserved for a fourth test; no object carries it
} // namespace identities

} // namespace ostra
