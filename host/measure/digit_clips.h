// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/measure/wav_file.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace measure {

constexpr std::size_t digitCount = 10;

/// The spoken digits 0 to 9 of one language, at their index.
using DigitClips = std::array<MonoSound, digitCount>;

/// Reads folder/language/<digit>_<language>.wav for the ten digits; nothing when one of them cannot be read.
std::optional<DigitClips> readDigitClips(const std::filesystem::path &folder, const std::string &language);

} // namespace measure
