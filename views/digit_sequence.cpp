// SPDX-License-Identifier: Apache-2.0
#include "views/digit_sequence.h"

#include <QRandomGenerator64>

#include <algorithm>
#include <random>

namespace ostra {

// The generator's own bounded() multiplies and shifts, which favours some values; the distribution draws those again.
int randomDigit() { return std::uniform_int_distribution<int>(0, 9)(*QRandomGenerator64::global()); }

PlaybackSources &playbackSources() noexcept
{
    static PlaybackSources sources;
    return sources;
}

std::vector<int> drawSequence()
{
    std::vector<int> sequence;
    while (sequence.size() < sequenceLength) {
        const int digit = playbackSources().digit();
        if (std::find(sequence.begin(), sequence.end(), digit) == sequence.end())
            sequence.push_back(digit);
    }
    return sequence;
}

} // namespace ostra
