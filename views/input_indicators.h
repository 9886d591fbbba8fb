// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "views/digit_sequence.h"

#include <array>
#include <cstddef>

class QPushButton;

namespace Ui {
class AudioPlaybackTestWidget;
}

namespace ostra {

/// What stands at the three positions of the sequence being typed: the digit ("set"), the mark of the next position to fill
/// ("current") or of a later one ("unset"). GUI thread only.
class InputIndicators {
public:
    /// The form owns the widgets and outlives this.
    explicit InputIndicators(const Ui::AudioPlaybackTestWidget &form);

    /// Positions count from 0; a position beyond the last is ignored.
    void showDigit(std::size_t position, int digit) const;
    void showCurrent(std::size_t position) const;
    void showUnset(std::size_t position) const;
    void clearDigit(std::size_t position) const;
    /// The first position is the next to fill.
    void reset() const;

private:
    struct Position {
        QPushButton *set;
        QPushButton *current;
        QPushButton *unset;
    };
    void showOnly(std::size_t position, QPushButton *Position::*shown) const;

    std::array<Position, sequenceLength> positions_;
};

} // namespace ostra
