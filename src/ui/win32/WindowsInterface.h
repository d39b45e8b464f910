#pragma once

#include "satwecvt/UserInterface.h"

#include <windows.h>

namespace satwecvt {

/// The user interface of the Windows library: message boxes and the progress window.
class CWindowsInterface : public CUserInterface {
public:
    /// `resources` is the module that holds the dialog templates.
    explicit CWindowsInterface(HINSTANCE resources) noexcept : module(resources) {}

    void ShowMessage(std::string_view text) override;
    void ReportFileError(std::string_view cause, std::string_view path) override;
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override;

private:
    HINSTANCE module;
};

/// The wait cursor, for as long as the object lives.
class CWaitCursor {
public:
    CWaitCursor() noexcept : previous(::SetCursor(::LoadCursorA(nullptr, MAKEINTRESOURCEA(32514)))) {}
    ~CWaitCursor() { ::SetCursor(previous); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    HCURSOR previous;
};

}  // namespace satwecvt
