// SPDX-License-Identifier: Apache-2.0
#include "audio/executable_folder.h"

#include "utils/wide_text.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace ostra::audio {

namespace {

std::string imagePath()
{
    std::array<wchar_t, 260> buffer{};
    auto unitCount = static_cast<DWORD>(buffer.size());
    if (QueryFullProcessImageNameW(GetCurrentProcess(), 0, buffer.data(), &unitCount) == 0)
        return {};
    return utils::toUtf8(std::u16string(buffer.begin(), buffer.begin() + unitCount));
}

} // namespace

std::string executableFolder()
{
    std::string path = imagePath();
    std::replace(path.begin(), path.end(), '\\', '/');
    return path.substr(0, path.rfind('/'));
}

} // namespace ostra::audio
