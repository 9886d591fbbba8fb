// SPDX-License-Identifier: Apache-2.0
#include "utils/wide_text.h"

#include <windows.h>

#include <cstddef>

namespace ostra::utils {

namespace {

constexpr UINT utf8CodePage = 65001;
constexpr int endedByZero = -1;

int convert(const std::wstring &text, char *result, int byteCount) noexcept
{
    return WideCharToMultiByte(utf8CodePage, 0, text.c_str(), endedByZero, result, byteCount, nullptr, nullptr);
}

} // namespace

std::string toUtf8(std::u16string_view text)
{
    const std::wstring wide(text.begin(), text.end());
    const int byteCount = convert(wide, nullptr, 0);
    if (byteCount < 1)
        return {};
    std::string result(static_cast<std::size_t>(byteCount), '\0');
    const int writtenByteCount = convert(wide, result.data(), byteCount);
    // Both counts include the terminator, which is no part of the text.
    result.resize(writtenByteCount < 1 ? 0 : static_cast<std::size_t>(writtenByteCount) - 1);
    return result;
}

} // namespace ostra::utils
