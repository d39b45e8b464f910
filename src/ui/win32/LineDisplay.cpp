#include "ui/win32/LineDisplay.h"

#include "ui/win32/resource.h"

#include <commctrl.h>

#include <limits>
#include <string>

namespace satwecvt {

namespace {

constexpr int kBarRange = 1000;

/// The position of the bar, truncated toward zero; a position that no integer holds (a total of 0 lines) is the end.
int BarPosition(double position)
{
    return position >= 0.0 && position < kBarRange ? static_cast<int>(position) : kBarRange;
}

}  // namespace

void CLineDisplay::Attach(HWND dialog) noexcept
{
    bar = ::GetDlgItem(dialog, IDC_PROGRESS_BAR);
    text = ::GetDlgItem(dialog, IDC_PARSING_LINE);
    barProcedure = Subclass(bar);
    textProcedure = Subclass(text);
}

void CLineDisplay::SetTotalLines(std::int32_t total) noexcept
{
    ::SendMessageA(bar, PBM_SETRANGE32, 0, kBarRange);
    scale = total != 0 ? static_cast<double>(kBarRange) / total : std::numeric_limits<double>::infinity();
}

void CLineDisplay::Show(std::int32_t line)
{
    parsingLine = line;
    constexpr ULONGLONG kMillisecondsBetweenDrawings = 16;
    const ULONGLONG now = ::GetTickCount64();
    if (now - lastDrawing >= kMillisecondsBetweenDrawings) {
        lastDrawing = now;
        Draw();
    }
}

void CLineDisplay::Draw()
{
    Store();
    ::InvalidateRect(text, nullptr, TRUE);
    ::UpdateWindow(text);
}

/// Puts `ControlProcedure` in front of a control's own procedure, which it returns.
WNDPROC CLineDisplay::Subclass(HWND control) noexcept
{
    ::SetWindowLongPtrA(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    const auto procedure = reinterpret_cast<LONG_PTR>(&CLineDisplay::ControlProcedure);
    return reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(control, GWLP_WNDPROC, procedure));
}

/// Brings the controls up to date for whoever asks for their values.
LRESULT CALLBACK CLineDisplay::ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<CLineDisplay*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message == WM_GETTEXT || message == WM_GETTEXTLENGTH || message == PBM_GETPOS) {
        self->Store();
    }
    const WNDPROC next = window == self->bar ? self->barProcedure : self->textProcedure;
    return ::CallWindowProcA(next, window, message, wParam, lParam);
}

/// Gives the controls the values of the parsing line. The bar draws itself; the text waits for its next drawing.
void CLineDisplay::Store()
{
    if (parsingLine == storedLine) {
        return;
    }
    storedLine = parsingLine;
    ::DefWindowProcA(text, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(std::to_string(parsingLine).c_str()));
    const int position = BarPosition(parsingLine * scale);
    if (position != storedPosition) {
        storedPosition = position;
        ::SendMessageA(bar, PBM_SETPOS, static_cast<WPARAM>(position), 0);
    }
}

}  // namespace satwecvt
