// SPDX-License-Identifier: Apache-2.0
#include "views/playback_keypad.h"

#include "ui_audio_playback_test_view.h"

namespace ostra {

PlaybackKeypad::PlaybackKeypad(const Ui::AudioPlaybackTestWidget &form)
    : unpressed_{form.audio_playback_test_numpad_button_unpressed_0, form.audio_playback_test_numpad_button_unpressed_1,
                 form.audio_playback_test_numpad_button_unpressed_2, form.audio_playback_test_numpad_button_unpressed_3,
                 form.audio_playback_test_numpad_button_unpressed_4, form.audio_playback_test_numpad_button_unpressed_5,
                 form.audio_playback_test_numpad_button_unpressed_6, form.audio_playback_test_numpad_button_unpressed_7,
                 form.audio_playback_test_numpad_button_unpressed_8, form.audio_playback_test_numpad_button_unpressed_9},
      pressed_{form.audio_playback_test_numpad_button_pressed_0, form.audio_playback_test_numpad_button_pressed_1,
               form.audio_playback_test_numpad_button_pressed_2, form.audio_playback_test_numpad_button_pressed_3,
               form.audio_playback_test_numpad_button_pressed_4, form.audio_playback_test_numpad_button_pressed_5,
               form.audio_playback_test_numpad_button_pressed_6, form.audio_playback_test_numpad_button_pressed_7,
               form.audio_playback_test_numpad_button_pressed_8, form.audio_playback_test_numpad_button_pressed_9}
{}

int PlaybackKeypad::digitOn(int digit) const { return static_cast<int>(unpressed(digit).text().toUInt()); }

void PlaybackKeypad::setPressed(int digit, bool isPressed) const
{
    unpressed(digit).setVisible(!isPressed);
    pressed(digit).setVisible(isPressed);
}

void PlaybackKeypad::releaseAll() const
{
    for (int digit = 0; digit < digitCount; ++digit)
        setPressed(digit, false);
}

} // namespace ostra
