// The window "Conversion Progress Window": how many input lines there are, which one is being parsed, a bar, a status
// text, and a Cancel button. The conversion runs on the caller's thread and has no message loop of its own; `StepLine`,
// called for every input line, hands out the thread's messages and looks for a cancel.
#pragma once

#include "ui/UserInterface.h"

#include <windows.h>

#include <cstdint>
#include <string>
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
    void OnCancelButton() noexcept { cancelRequested = 1; }
    void PumpMessages();
    bool IsEscapePressed() const noexcept;
    void ShowLine(std::int32_t line);
    void DrawLine() const;

    HWND dialog = nullptr;
    HWND progressBar = nullptr;
    HWND parsingLineText = nullptr;
    double scale = 0.0;  // bar units per line; the bar runs from 0 to 1000
    std::int32_t cancelRequested = 0;
    int shownPosition = 0;
    ULONGLONG lastDrawing = 0;  // of the parsing line, in milliseconds since the system started
    bool hasQuit = false;       // the pump met WM_QUIT
    WPARAM quitCode = 0;
};

}  // namespace satwecvt
