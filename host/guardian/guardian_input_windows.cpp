// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_input.h"

#include <windows.h>

#include <array>

namespace host {

// The client starts this process without a window, and so with a console of its own; started otherwise it shares one.
void detachFromHost() { SetConsoleCtrlHandler(nullptr, TRUE); }

// Nothing asks a process without windows to end here: it is terminated, and then the note serves the next start.
GuardianInput waitForInput()
{
    std::array<char, 256> buffer{};
    DWORD byteCount = 0;
    const BOOL isRead =
        ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), static_cast<DWORD>(buffer.size()), &byteCount, nullptr);
    if (isRead == FALSE || byteCount == 0)
        return {GuardianInput::Kind::ended, {}};
    return {GuardianInput::Kind::bytes, QByteArray(buffer.data(), static_cast<qsizetype>(byteCount))};
}

} // namespace host
