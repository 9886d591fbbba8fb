// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>

class QPushButton;

namespace Ui {
class AudioPlaybackTestWidget;
}

namespace ostra {

/// The ten digits of the keypad; each is a pair of buttons of which exactly one is shown. GUI thread only.
class PlaybackKeypad {
public:
    static constexpr int digitCount = 10;

    /// The form owns the buttons and outlives this.
    explicit PlaybackKeypad(const Ui::AudioPlaybackTestWidget &form);

    QPushButton &unpressed(int digit) const { return *unpressed_.at(static_cast<std::size_t>(digit)); }
    QPushButton &pressed(int digit) const { return *pressed_.at(static_cast<std::size_t>(digit)); }

    /// The digit that the unpressed button of `digit` shows as its text.
    int digitOn(int digit) const;

    void setPressed(int digit, bool isPressed) const;
    void releaseAll() const;

private:
    std::array<QPushButton *, digitCount> unpressed_;
    std::array<QPushButton *, digitCount> pressed_;
};

} // namespace ostra
