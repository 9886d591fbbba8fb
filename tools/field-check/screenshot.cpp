// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/screenshot.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace field_check {

namespace {

// The encoder's fixed identity, as the system's headers leave it to be looked up.
constexpr CLSID pngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

HBITMAP copyScreen()
{
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    const int width = GetSystemMetrics(SM_CXVIRTUALSCREEN);
    const int height = GetSystemMetrics(SM_CYVIRTUALSCREEN);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
           SRCCOPY | CAPTUREBLT);
    SelectObject(memory, before);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

bool saveBitmap(HBITMAP bitmap, const std::filesystem::path &file)
{
    Gdiplus::Bitmap picture(bitmap, nullptr);
    return picture.Save(file.c_str(), &pngEncoder, nullptr) == Gdiplus::Ok;
}

} // namespace

bool saveScreenshot(const std::filesystem::path &file)
{
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return false;
    HBITMAP bitmap = copyScreen();
    const bool isSaved = bitmap != nullptr && saveBitmap(bitmap, file);
    DeleteObject(bitmap);
    Gdiplus::GdiplusShutdown(token);
    return isSaved;
}

} // namespace field_check
