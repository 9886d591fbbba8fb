// SPDX-License-Identifier: Apache-2.0
#include "host/sal/text_windows.h"

#include <windows.h>

#include <limits>

namespace sal {
namespace {

// The conversion functions count in int; nothing that this library handles comes near.
bool isConvertible(std::size_t length)
{
    return length > 0 && length <= static_cast<std::size_t>(std::numeric_limits<int>::max());
}

} // namespace

std::wstring toWide(std::string_view utf8)
{
    if (!isConvertible(utf8.size()))
        return {};
    const int length = static_cast<int>(utf8.size());
    const int unitCount = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(unitCount), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), unitCount);
    return wide;
}

std::string toUtf8(std::wstring_view wide)
{
    if (!isConvertible(wide.size()))
        return {};
    const int length = static_cast<int>(wide.size());
    const int byteCount = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(byteCount), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), byteCount, nullptr, nullptr);
    return utf8;
}

} // namespace sal
