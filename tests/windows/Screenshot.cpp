#include "windows/Screenshot.h"

#include <gdiplus.h>

#include <filesystem>

namespace satwecvt {

namespace {

/// A copy of what the screen shows where a window stands.
HBITMAP CopyScreen(HWND window)
{
    // Wine brings what a thread has drawn to the screen when the thread looks for messages. Nothing is painted by that.
    MSG message;
    ::PeekMessageA(&message, nullptr, WM_NULL, WM_NULL, PM_NOREMOVE | (QS_SENDMESSAGE << 16));

    RECT area{};
    ::GetWindowRect(window, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ previous = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    ::SelectObject(memory, previous);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

}  // namespace

bool SaveScreenshot(HWND window, const std::string& name)
{
    std::filesystem::create_directories(SATWECVT_SCREENSHOTS);
    const std::filesystem::path file = std::filesystem::path(SATWECVT_SCREENSHOTS) / (name + ".png");

    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return false;
    }
    const HBITMAP copy = CopyScreen(window);
    bool isSaved = false;
    {
        constexpr CLSID kPng = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
        Gdiplus::Bitmap picture(copy, HPALETTE{});
        isSaved = picture.Save(file.c_str(), &kPng, nullptr) == Gdiplus::Ok;
    }
    ::DeleteObject(copy);
    Gdiplus::GdiplusShutdown(token);
    return isSaved;
}

std::vector<char> ScreenBytes(HWND window)
{
    const HBITMAP copy = CopyScreen(window);
    BITMAP about{};
    ::GetObjectA(copy, sizeof(about), &about);
    std::vector<char> bytes(static_cast<std::size_t>(about.bmWidthBytes) * static_cast<std::size_t>(about.bmHeight));
    ::GetBitmapBits(copy, static_cast<LONG>(bytes.size()), bytes.data());
    ::DeleteObject(copy);
    return bytes;
}

bool IsDrawnWhole(HWND window)
{
    const std::vector<char> found = ScreenBytes(window);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    return found == ScreenBytes(window);
}

}  // namespace satwecvt
