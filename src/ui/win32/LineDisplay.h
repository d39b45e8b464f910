// The two controls of the progress window that change at every input line: the number of the parsing line, and the bar.
//
// Both have the exact values of every line for whoever asks for them. Nobody can ask between two lines, so the values
// are stored in the controls when somebody does, and about 60 times a second, when they are drawn: storing or drawing
// every line would cost far more than reading it.
#pragma once

#include <windows.h>

#include <cstdint>

namespace satwecvt {

class CLineDisplay {
public:
    /// Takes the two controls of the window, which does not outlive this object.
    void Attach(HWND dialog) noexcept;

    /// The number of lines at which the bar is at its end, 1000. With 0 lines it is there from the first line on.
    void SetTotalLines(std::int32_t total) noexcept;

    /// Takes the line that is being parsed, and draws it when the last drawing is long enough ago.
    void Show(std::int32_t line);

    /// Draws the line shown last.
    void Draw();

private:
    static LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    WNDPROC Subclass(HWND control) noexcept;
    void Store();

    HWND bar = nullptr;
    HWND text = nullptr;
    WNDPROC barProcedure = nullptr;  // the controls' own
    WNDPROC textProcedure = nullptr;
    double scale = 0.0;             // bar units per line; the bar runs from 0 to 1000
    std::int32_t parsingLine = -1;  // none yet
    std::int32_t storedLine = -1;   // the one whose values the controls hold
    int storedPosition = 0;
    ULONGLONG lastDrawing = 0;  // in milliseconds since the system started
};

}  // namespace satwecvt
