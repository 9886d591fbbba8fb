// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

/// Starts what stands between the user and the windows; fails the running test when it cannot.
void startWindowManager();
void stopWindowManager();

/// Lets the system ask the window to close, as it does for a user: the window manager by its key where there is one, which
/// sends WM_DELETE_WINDOW to the active window, else WM_CLOSE. Does not wait for the window's answer.
void requestClose(QWidget &window);
