// SPDX-License-Identifier: Apache-2.0
#include "views/input_indicators.h"

#include "ui_audio_playback_test_view.h"

namespace ostra {

InputIndicators::InputIndicators(const Ui::AudioPlaybackTestWidget &form)
    : positions_{{{form.audio_playback_test_first_input_set, form.audio_playback_test_first_input_current,
                   form.audio_playback_test_first_input_unset},
                  {form.audio_playback_test_second_input_set, form.audio_playback_test_second_input_current,
                   form.audio_playback_test_second_input_unset},
                  {form.audio_playback_test_third_input_set, form.audio_playback_test_third_input_current,
                   form.audio_playback_test_third_input_unset}}}
{}

void InputIndicators::showOnly(std::size_t position, QPushButton *Position::*shown) const
{
    if (position >= positions_.size())
        return;
    const Position &at = positions_.at(position);
    for (QPushButton *Position::*kind : {&Position::set, &Position::current, &Position::unset}) {
        if (kind != shown)
            (at.*kind)->hide();
    }
    (at.*shown)->show(); // last, so that a position never shows two at once
}

void InputIndicators::showDigit(std::size_t position, int digit) const
{
    positions_.at(position).set->setText(QString::number(digit));
    showOnly(position, &Position::set);
}

void InputIndicators::showCurrent(std::size_t position) const { showOnly(position, &Position::current); }

void InputIndicators::showUnset(std::size_t position) const { showOnly(position, &Position::unset); }

void InputIndicators::clearDigit(std::size_t position) const { positions_.at(position).set->setText(QString()); }

void InputIndicators::reset() const
{
    showCurrent(0);
    for (std::size_t position = 1; position < positions_.size(); ++position)
        showUnset(position);
}

} // namespace ostra
