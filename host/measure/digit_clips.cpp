// SPDX-License-Identifier: Apache-2.0
#include "host/measure/digit_clips.h"

#include <utility>

namespace measure {

std::optional<DigitClips> readDigitClips(const std::filesystem::path &folder, const std::string &language)
{
    DigitClips clips;
    for (std::size_t digit = 0; digit < digitCount; ++digit) {
        auto clip = readWavFile(folder / language / (std::to_string(digit) + "_" + language + ".wav"));
        if (!clip)
            return std::nullopt;
        clips[digit] = std::move(*clip);
    }
    return clips;
}

} // namespace measure
