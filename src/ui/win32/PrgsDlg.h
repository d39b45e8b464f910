// The window "Conversion Progress Window": how many input lines there are, which one is being parsed, a bar, a status
// text, and a Cancel button. The conversion runs on the caller's thread and has no message loop of its own; `StepLine`,
// called for every input line, hands out the thread's messages and looks for a cancel.
#pragma once

#include "satwecvt/UserInterface.h"
#include "ui/win32/LineDisplay.h"

#include <windows.h>

#include <cstdint>
#include <string_view>

namespace satwecvt {

class CPrgsDlg : public CProgressWindow {
public:
    /// Creates the window without a parent and shows it; `IsAlive` tells whether that went well. An Escape pressed
    /// before does not count.
    explicit CPrgsDlg(HINSTANCE resources);

    /// Destroys the window when it still exists. When the message pump met WM_QUIT, it is posted again.
    ~CPrgsDlg() override;
    CPrgsDlg(const CPrgsDlg&) = delete;
    CPrgsDlg& operator=(const CPrgsDlg&) = delete;

    bool IsAlive() const noexcept { return ::IsWindow(dialog) != 0; }

    void SetTotalLines(std::int32_t total) override;
    int StepLine(std::int32_t line) override;
    void SetStageText(std::string_view text) override;

private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnInitDialog(HWND window) noexcept;
    void OnCancelButton() noexcept { cancelRequested = true; }
    void PumpMessages();
    bool IsEscapePressed() const noexcept;

    HWND dialog = nullptr;
    CLineDisplay lineDisplay;
    bool cancelRequested = false;  // the Cancel button was clicked
    bool hasQuit = false;          // the pump met WM_QUIT
    WPARAM quitCode = 0;
};

}  // namespace satwecvt
