#include "ui/win32/PrgsDlg.h"

#include "ui/win32/resource.h"

#include <string>

namespace satwecvt {

CPrgsDlg::CPrgsDlg(HINSTANCE resources)
{
    dialog = ::CreateDialogParamA(resources, MAKEINTRESOURCEA(IDD_PROGRESS), nullptr, DialogProcedure,
                                  reinterpret_cast<LPARAM>(this));
    ::ShowWindow(dialog, SW_SHOW);
    IsEscapePressed();  // drops an Escape that was pressed before
}

CPrgsDlg::~CPrgsDlg()
{
    if (IsAlive()) {
        ::DestroyWindow(dialog);
    }
    if (hasQuit) {
        ::PostQuitMessage(static_cast<int>(quitCode));
    }
}

INT_PTR CALLBACK CPrgsDlg::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(window, DWLP_USER, lParam);
        reinterpret_cast<CPrgsDlg*>(lParam)->OnInitDialog(window);
        return TRUE;
    }
    auto* const self = reinterpret_cast<CPrgsDlg*>(::GetWindowLongPtrA(window, DWLP_USER));
    const bool isClick = message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED;
    if (self != nullptr && isClick && LOWORD(wParam) == IDC_CANCEL_READING) {
        self->OnCancelButton();
        return TRUE;
    }
    return FALSE;
}

/// Gives the controls their first texts before the window is shown: nobody sees the template's placeholders.
void CPrgsDlg::OnInitDialog(HWND window) noexcept
{
    dialog = window;
    ::SetDlgItemTextA(dialog, IDC_TOTAL_LINE, "");
    ::SetDlgItemTextA(dialog, IDC_PARSING_LINE, "");
    ::SetDlgItemTextA(dialog, IDC_STATUS, "!!! Read Data File !!!");
    lineDisplay.Attach(dialog);
}

void CPrgsDlg::SetTotalLines(std::int32_t total)
{
    ::SetDlgItemTextA(dialog, IDC_TOTAL_LINE, std::to_string(total).c_str());
    lineDisplay.SetTotalLines(total);
}

int CPrgsDlg::StepLine(std::int32_t line)
{
    PumpMessages();
    if (IsEscapePressed() || cancelRequested || hasQuit) {
        ::DestroyWindow(dialog);
        return 0;
    }
    lineDisplay.Show(line);
    return 1;
}

void CPrgsDlg::SetStageText(std::string_view text)
{
    const std::string status = "!!! " + std::string(text) + " !!!";
    ::SetDlgItemTextA(dialog, IDC_STATUS, status.c_str());
    ::UpdateWindow(::GetDlgItem(dialog, IDC_STATUS));  // nothing pumps messages while the model is written
    lineDisplay.Draw();                                // the last line read may not have been drawn yet
}

/// Hands out all waiting messages of the thread, the host's windows included: by the wide functions, which lose no
/// character of a window that takes wide ones. WM_QUIT counts as a cancel.
void CPrgsDlg::PumpMessages()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        if (message.message == WM_QUIT) {
            hasQuit = true;
            quitCode = message.wParam;
        } else if (::IsDialogMessageW(dialog, &message) == 0) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
}

/// Whether Escape was pressed since the last call, wherever the focus was.
bool CPrgsDlg::IsEscapePressed() const noexcept
{
    constexpr SHORT kPressedSinceLastQuery = 1;
    return (::GetAsyncKeyState(VK_ESCAPE) & kPressedSinceLastQuery) != 0;
}

}  // namespace satwecvt
