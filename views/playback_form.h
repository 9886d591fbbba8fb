// SPDX-License-Identifier: Apache-2.0
#pragma once

class QDialog;

namespace Ui {
class AudioPlaybackTestWidget;
}

/// How the playback form looks before anything happens in it. GUI thread only.
namespace ostra::playback_form {

/// Sizes and fonts for the scale factor of the primary monitor (1.0 to 2.0): a dialog of 466 × 424 and keys of 34 × 34, scaled
/// and without their fraction.
void scale(const Ui::AudioPlaybackTestWidget &form, QDialog &dialog, double scaleFactor);

/// Every text, tooltip and accessible name, translated in the context "AUDIO".
void setTexts(const Ui::AudioPlaybackTestWidget &form, QDialog &dialog);

/// The first sequence is the current one.
void showFirstSequence(const Ui::AudioPlaybackTestWidget &form);

/// The first sequence has failed and the second one is the current one.
void showSecondSequence(const Ui::AudioPlaybackTestWidget &form, bool wrapsWords);

} // namespace ostra::playback_form
