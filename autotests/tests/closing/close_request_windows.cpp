// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/close_request.h"

#include <QWidget>

#include <windows.h>

#include <bit>

void startWindowManager() {}

void stopWindowManager() {}

void requestClose(QWidget &window) { PostMessageW(std::bit_cast<HWND>(window.winId()), WM_CLOSE, 0, 0); }
