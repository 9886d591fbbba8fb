// SPDX-License-Identifier: Apache-2.0
#pragma once

class QDialog;

/// How the forms of the microphone dialog look. GUI thread only.
namespace ostra::microphone_form {

/// Sizes, margins and fonts of `dialog` and its pages for the scale factor of the primary monitor (1.0 to 2.0), then a fixed
/// size of 466 × 260, scaled, or what the longest texts need.
void scale(QDialog &dialog, double scaleFactor);

} // namespace ostra::microphone_form
