// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace host {

/// Clicks the middle of a widget by mouse events of its window, as a person would: the window finds out itself what lies there.
/// Raises the window first where another one of this program covers the place. False, and nothing is sent, where a person could
/// not click it: hidden, disabled, covered, or behind a modal window.
bool clickOn(QWidget *target);

/// Presses and releases a digit's key on a window: it goes to whatever has the focus there. False behind a modal window.
bool pressDigitKey(QWidget *window, int digit);

} // namespace host
