#include "windows/DialogTemplate.h"

#include "windows/LibraryWindows.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace satwecvt {

namespace {

std::vector<HWND> Controls(HWND dialog)
{
    std::vector<HWND> controls;
    for (HWND control = ::GetWindow(dialog, GW_CHILD); control != nullptr;
         control = ::GetWindow(control, GW_HWNDNEXT)) {
        controls.push_back(control);
    }
    return controls;
}

/// Where a control stands in the dialog's client area, in pixels.
RECT Place(HWND dialog, HWND control)
{
    POINT corners[2]{};
    RECT place{};
    ::GetWindowRect(control, &place);
    corners[0] = {place.left, place.top};
    corners[1] = {place.right, place.bottom};
    ::MapWindowPoints(nullptr, dialog, corners, 2);
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

bool IsGroupBox(HWND control)
{
    constexpr LONG_PTR kButtonKind = 0xF;
    return ClassName(control) == "button" && (::GetWindowLongPtrA(control, GWL_STYLE) & kButtonKind) == BS_GROUPBOX;
}

/// Bits, which a failure's message shows as hexadecimal number.
struct CHex {
    DWORD bits;
    bool operator==(const CHex&) const = default;
};

void PrintTo(const CHex& hex, std::ostream* out)
{
    *out << "0x" << std::hex << hex.bits;
}

DWORD Style(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_STYLE));
}

DWORD ExtendedStyle(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_EXSTYLE));
}

SIZE TextSize(HWND control, const std::string& text)
{
    const HDC screen = ::GetDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(screen, reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0)));
    SIZE size{};
    ::GetTextExtentPoint32A(screen, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(screen, previous);
    ::ReleaseDC(nullptr, screen);
    return size;
}

}  // namespace

void ExpectTemplate(HWND dialog, const CTemplate& expectedDialog, const std::vector<CTemplateControl>& controls)
{
    EXPECT_EQ(expectedDialog.title, Text(dialog));
    constexpr DWORD kOfTheSystem = WS_VISIBLE | WS_CLIPSIBLINGS | DS_3DLOOK;
    constexpr DWORD kModalFrame = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;
    EXPECT_EQ(CHex{expectedDialog.style | kOfTheSystem}, CHex{Style(dialog)});
    EXPECT_EQ(CHex{kModalFrame | WS_EX_CONTROLPARENT}, CHex{ExtendedStyle(dialog)});
    EXPECT_EQ(nullptr, ::GetWindow(dialog, GW_OWNER));

    RECT expectedClient{0, 0, expectedDialog.size.cx, expectedDialog.size.cy};
    ::MapDialogRect(dialog, &expectedClient);
    RECT client{};
    ::GetClientRect(dialog, &client);
    EXPECT_EQ(expectedClient.right, client.right);
    EXPECT_EQ(expectedClient.bottom, client.bottom);

    const std::vector<HWND> windows = Controls(dialog);
    ASSERT_EQ(controls.size(), windows.size());
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const CTemplateControl& expected = controls[i];
        SCOPED_TRACE("control " + std::to_string(i) + " \"" + expected.text + "\"");
        EXPECT_EQ(expected.id, ::GetDlgCtrlID(windows[i]));
        EXPECT_EQ(expected.className, ClassName(windows[i]));
        EXPECT_EQ(expected.text, Text(windows[i]));
        EXPECT_EQ(CHex{expected.style | WS_CHILD | WS_VISIBLE}, CHex{Style(windows[i])});
        EXPECT_EQ(CHex{expected.extendedStyle}, CHex{ExtendedStyle(windows[i])});

        EXPECT_EQ(expectedDialog.font, FontName(windows[i]));
        EXPECT_EQ(expectedDialog.points, FontPoints(windows[i]));

        RECT mapped = expected.place;
        ::MapDialogRect(dialog, &mapped);
        const RECT place = Place(dialog, windows[i]);
        EXPECT_EQ(mapped.left, place.left);
        EXPECT_EQ(mapped.top, place.top);
        EXPECT_EQ(mapped.right, place.right - place.left);
        EXPECT_EQ(mapped.bottom, place.bottom - place.top);
    }
}

void ExpectNothingCutOffOrCovered(HWND dialog)
{
    RECT client{};
    ::GetClientRect(dialog, &client);
    const std::vector<HWND> controls = Controls(dialog);
    for (const HWND control : controls) {
        const std::string text = Text(control);
        SCOPED_TRACE("control " + std::to_string(::GetDlgCtrlID(control)) + " \"" + text + "\"");
        const RECT place = Place(dialog, control);
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= client.right && place.bottom <= client.bottom);
        if (ClassName(control) != "edit") {  // an edit scrolls
            const SIZE size = TextSize(control, text);
            EXPECT_LE(size.cx, place.right - place.left);
            EXPECT_LE(size.cy, place.bottom - place.top);
        }
        for (const HWND other : controls) {
            const RECT otherPlace = Place(dialog, other);
            RECT common{};
            const bool isTold = other == control || IsGroupBox(control) || IsGroupBox(other);
            EXPECT_TRUE(isTold || ::IntersectRect(&common, &place, &otherPlace) == 0)
                << "covers control " << ::GetDlgCtrlID(other) << " \"" << Text(other) << '"';
        }
    }
}

}  // namespace satwecvt
