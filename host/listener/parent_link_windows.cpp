// SPDX-License-Identifier: Apache-2.0
#include "host/listener/parent_link.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace host {

namespace {

bool hasPipeEnded(HANDLE pipe)
{
    DWORD waiting = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) == 0)
        return true;
    std::array<char, 256> buffer{};
    if (waiting == 0)
        return false;
    DWORD byteCount = 0;
    const DWORD wanted = std::min<DWORD>(waiting, static_cast<DWORD>(buffer.size()));
    return ReadFile(pipe, buffer.data(), wanted, &byteCount, nullptr) == 0;
}

} // namespace

bool hasInputEnded()
{
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    if (input == nullptr || input == INVALID_HANDLE_VALUE)
        return true;
    DWORD mode = 0;
    if (GetConsoleMode(input, &mode) != 0)
        return false; // a console ends with its window
    return GetFileType(input) != FILE_TYPE_PIPE || hasPipeEnded(input);
}

} // namespace host
