// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace ostra {

/// What a failed test makes suspect: "POSSIBLE_DEFECTIVE_COMPONENTS: " and the component keys, joined by ", ".
std::string playbackHint();
std::string microphoneHint();

} // namespace ostra
