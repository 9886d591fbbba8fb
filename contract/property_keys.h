// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Keys of a device's properties, in the order in which a described device carries them. Channels and sample rate are those of
/// the opening format, which is the clip's: the sound server converts to whatever the hardware runs at.
namespace ostra::properties {

inline constexpr const char *udi = "UDI";                             ///< device name, as the sound layer lists it
inline constexpr const char *numberOfChannels = "NUMBER_OF_CHANNELS"; ///< of the opening format, decimal
inline constexpr const char *sampleRate = "SAMPLE_RATE";              ///< frames per second of the opening format, decimal
inline constexpr const char *driverName = "DRIVER_NAME";              ///< sound back end in use, not the vendor's driver
inline constexpr const char *driverVersion = "DRIVER_VERSION";        ///< only when a version was found

} // namespace ostra::properties
