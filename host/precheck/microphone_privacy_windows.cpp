// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/microphone_privacy.h"

#include <windows.h>

#include <array>
#include <string_view>

namespace host {

namespace {

constexpr const wchar_t *store =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\CapabilityAccessManager\\ConsentStore\\microphone";
constexpr const wchar_t *desktopStore =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\CapabilityAccessManager\\ConsentStore\\microphone\\NonPackaged";

bool isDenied(HKEY root, const wchar_t *key)
{
    std::array<wchar_t, 16> value{};
    DWORD byteCount = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    const LSTATUS status = RegGetValueW(root, key, L"Value", RRF_RT_REG_SZ, nullptr, value.data(), &byteCount);
    return status == ERROR_SUCCESS && std::wstring_view(value.data()) == L"Deny";
}

} // namespace

bool isMicrophoneBlocked()
{
    return isDenied(HKEY_LOCAL_MACHINE, store) || isDenied(HKEY_CURRENT_USER, store) ||
           isDenied(HKEY_CURRENT_USER, desktopStore);
}

} // namespace host
