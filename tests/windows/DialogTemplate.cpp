#include "windows/DialogTemplate.h"

#include "windows/HostWindows.h"

#include <gtest/gtest.h>

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

void ExpectTemplate(HWND dialog, SIZE size, const std::vector<CTemplateControl>& controls)
{
    RECT expectedClient{0, 0, size.cx, size.cy};
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
        const auto style = static_cast<DWORD>(::GetWindowLongPtrA(windows[i], GWL_STYLE));
        EXPECT_EQ(expected.style, style & expected.style);
        EXPECT_TRUE(style & WS_VISIBLE);

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
