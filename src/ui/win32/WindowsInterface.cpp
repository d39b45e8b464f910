#include "ui/win32/WindowsInterface.h"

#include "ui/win32/PrgsDlg.h"

#include <string>

namespace satwecvt {

void CWindowsInterface::ShowMessage(std::string_view text)
{
    ::MessageBoxA(::GetActiveWindow(), std::string(text).c_str(), "PKPM Import",
                  MB_OK | MB_ICONEXCLAMATION | MB_TASKMODAL);
}

void CWindowsInterface::ReportFileError(std::string_view cause, std::string_view path)
{
    ShowMessage(FileErrorText(cause, path));
}

std::unique_ptr<CProgressWindow> CWindowsInterface::CreateProgressWindow()
{
    auto window = std::make_unique<CPrgsDlg>(module);
    return window->IsAlive() ? std::move(window) : nullptr;
}

}  // namespace satwecvt
