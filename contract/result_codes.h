// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

/// Codes that `Test::run` returns; no other is produced.
namespace ostra::result {

inline constexpr std::uint32_t passed = 0;            ///< nothing is wrong with the component
inline constexpr std::uint32_t failed = 1;            ///< the component is defective or the user reported a fault
inline constexpr std::uint32_t cannotBePerformed = 3; ///< the component cannot be tested or the user cannot be asked
inline constexpr std::uint32_t notCompleted = 4;      ///< cancelled by an event, by the user or by an error
inline constexpr std::uint32_t invalidCall = 6;       ///< a service of the context is missing, or no audio component

} // namespace ostra::result

/// Levels of `MessageSink::addMessage`.
namespace ostra::message_level {

inline constexpr std::uint32_t note = 0;  ///< cancellation, device hint and whatever is no verdict on the device
inline constexpr std::uint32_t error = 2; ///< explains a failure or an inaccessible device

} // namespace ostra::message_level
