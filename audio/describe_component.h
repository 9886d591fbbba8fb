// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::audio {

class AudioComponent;

/// Fills the component's identity and its properties, in the order of property_keys.h. Opens the device once, by loading the
/// clip of digit 0, and closes it again; a device that cannot be opened still reports the format of the clip or of the
/// fallback sound. Blocks for the opening, the closing and the query of the driver version.
void describeComponent(AudioComponent &component);

} // namespace ostra::audio
