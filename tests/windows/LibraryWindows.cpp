#include "windows/LibraryWindows.h"

#include "ui/win32/resource.h"

#include <dlgs.h>

#include <algorithm>
#include <cctype>

namespace satwecvt {

namespace {

constexpr int kMessageOfABox = 0xFFFF;  // a control of every message box
constexpr UINT kLongestWait = 60'000;   // milliseconds: only what hangs takes so long

struct CWindowSearch {
    DWORD process;
    std::vector<HWND> found;
};

BOOL CALLBACK CollectWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<CWindowSearch*>(parameter);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner == search.process && ::IsWindowVisible(window) != 0) {
        search.found.push_back(window);
    }
    return TRUE;
}

HWND FindWindowThat(DWORD process, const std::function<bool(HWND)>& fits)
{
    const std::vector<HWND> windows = OpenWindows(process);
    const auto found = std::find_if(windows.begin(), windows.end(), fits);
    return found == windows.end() ? nullptr : *found;
}

bool HasControl(HWND window, int control)
{
    return ::GetDlgItem(window, control) != nullptr;
}

bool IsFileDialog(HWND window)
{
    return HasControl(window, cmb1) && HasControl(window, IDOK);
}

/// The caption, read without asking the window's thread, which may be busy.
std::string Title(HWND window)
{
    WCHAR wide[64]{};
    const int length = ::InternalGetWindowText(window, wide, 64);
    std::string title(static_cast<std::size_t>(length), '?');
    std::transform(wide, wide + length, title.begin(), [](WCHAR c) { return c < 0x80 ? static_cast<char>(c) : '?'; });
    return title;
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    ::SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, kLongestWait, &result);
    return static_cast<LRESULT>(result);
}

LOGFONTA Font(HWND window)
{
    LOGFONTA font{};
    ::GetObjectA(reinterpret_cast<HFONT>(Send(window, WM_GETFONT, 0, 0)), sizeof(font), &font);
    return font;
}

}  // namespace

bool WaitUntil(const std::function<bool()>& condition)
{
    const ULONGLONG start = ::GetTickCount64();
    while (!condition()) {
        if (::GetTickCount64() - start > kLongestWait) {
            return false;
        }
        ::Sleep(2);
    }
    return true;
}

std::vector<HWND> OpenWindows(DWORD process)
{
    CWindowSearch search{process, {}};
    ::EnumWindows(CollectWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// The import dialog and the message boxes have one title: a control that only one of them has tells them apart. (Not
// one that is missing: a dialog that is just being destroyed has lost its controls.)
HWND FindImportDialog(DWORD process)
{
    return FindWindowThat(
        process, [](HWND window) { return Title(window) == kImportTitle && HasControl(window, IDC_LOAD_PATH); });
}

HWND FindProgressWindow(DWORD process)
{
    return FindWindowThat(process, [](HWND window) { return Title(window) == kProgressTitle; });
}

HWND FindMessageBox(DWORD process)
{
    return FindWindowThat(
        process, [](HWND window) { return Title(window) == kImportTitle && HasControl(window, kMessageOfABox); });
}

HWND FindFileDialog(DWORD process)
{
    return FindWindowThat(process, IsFileDialog);
}

HWND FindFileDialogBut(const std::vector<HWND>& windows)
{
    return FindWindowThat(::GetCurrentProcessId(), [&](HWND window) {
        return IsFileDialog(window) && std::find(windows.begin(), windows.end(), window) == windows.end();
    });
}

HWND WaitFor(HWND (*find)(DWORD), DWORD process)
{
    HWND window = nullptr;
    WaitUntil([&] { return (window = find(process)) != nullptr; });
    return window;
}

std::string Text(HWND window)
{
    const LRESULT length = Send(window, WM_GETTEXTLENGTH, 0, 0);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const LRESULT copied = Send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

std::string Text(HWND dialog, int control)
{
    return Text(::GetDlgItem(dialog, control));
}

std::string BoxMessage(HWND box)
{
    return Text(::GetDlgItem(box, kMessageOfABox));
}

std::string FontName(HWND window)
{
    return Font(window).lfFaceName;
}

int FontPoints(HWND window)
{
    const HDC screen = ::GetDC(nullptr);
    const int points = ::MulDiv(-Font(window).lfHeight, 72, ::GetDeviceCaps(screen, LOGPIXELSY));
    ::ReleaseDC(nullptr, screen);
    return points;
}

HWND FocusOf(DWORD thread)
{
    GUITHREADINFO about{};
    about.cbSize = sizeof(about);
    ::GetGUIThreadInfo(thread, &about);
    return about.hwndFocus;
}

std::string ClassName(HWND window)
{
    char name[64]{};
    ::GetClassNameA(window, name, sizeof(name));
    std::string lower = name;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

void Type(HWND edit, const std::string& text)
{
    Send(edit, EM_SETSEL, 0, -1);
    Send(edit, WM_CHAR, VK_BACK, 1);
    for (const char c : text) {
        Send(edit, WM_CHAR, static_cast<unsigned char>(c), 1);
    }
}

void Paste(HWND edit, const std::string& text)
{
    Send(edit, EM_SETSEL, 0, -1);
    Send(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void Click(HWND button)
{
    constexpr LPARAM kInside = 3 | (3 << 16);
    ::PostMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    ::PostMessageA(button, WM_LBUTTONUP, 0, kInside);
}

void Click(HWND dialog, int control)
{
    Click(::GetDlgItem(dialog, control));
}

void CloseBox(HWND box)
{
    const int button = ::IsWindowVisible(::GetDlgItem(box, IDOK)) != 0 ? IDOK : IDCANCEL;
    Click(box, button);
}

void PressKey(WORD key)
{
    INPUT strokes[2]{};
    for (INPUT& stroke : strokes) {
        stroke.type = INPUT_KEYBOARD;
        stroke.ki.wVk = key;
    }
    strokes[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, strokes, sizeof(INPUT));
}

void CloseAllWindows()
{
    for (const HWND window : OpenWindows()) {
        const int button = HasControl(window, IDC_CANCEL_READING) ? IDC_CANCEL_READING
                           : HasControl(window, IDCANCEL)         ? IDCANCEL
                                                                  : IDOK;
        ::PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
}

}  // namespace satwecvt
