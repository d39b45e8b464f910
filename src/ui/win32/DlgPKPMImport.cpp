#include "ui/win32/DlgPKPMImport.h"

#include "ui/win32/ControlText.h"
#include "ui/win32/resource.h"

#include <commdlg.h>

#include <vector>

namespace satwecvt {

// The parts of a filter are parted by NULs and closed by two, as the system wants them.
const CDlgPKPMImport::CFileKind CDlgPKPMImport::kStructureFile = {
    IDC_STRUCTURE_PATH, "PKPM Structure Files(*.sat)\0*.sat\0All Files(*.*)\0*.*\0", &CDlgPKPMImport::structurePath};
const CDlgPKPMImport::CFileKind CDlgPKPMImport::kLoadFile = {
    IDC_LOAD_PATH, "PKPM Load Files(*.sat)\0*.sat\0All Files(*.*)\0*.*\0", &CDlgPKPMImport::loadPath};

INT_PTR CDlgPKPMImport::DoModal()
{
    ::DialogBoxParamA(module, MAKEINTRESOURCEA(IDD_IMPORT), nullptr, DialogProcedure, reinterpret_cast<LPARAM>(this));
    return isConfirmed ? IDOK : IDCANCEL;  // a dialog that WM_QUIT ends returns IDOK, too: only the button counts
}

void CDlgPKPMImport::GetPaths(std::string& structure, std::string& load) const
{
    structure = structurePath;
    load = loadPath;
}

INT_PTR CALLBACK CDlgPKPMImport::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        auto* const self = reinterpret_cast<CDlgPKPMImport*>(lParam);
        self->dialog = window;
        ::SetWindowLongPtrA(window, DWLP_USER, lParam);
        return TRUE;  // the system gives the focus to the first edit
    }
    auto* const self = reinterpret_cast<CDlgPKPMImport*>(::GetWindowLongPtrA(window, DWLP_USER));
    if (self == nullptr || message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED) {
        return FALSE;
    }
    try {
        self->OnCommand(LOWORD(wParam));
    } catch (...) {  // out of memory: no exception may pass through the system's code
        ::EndDialog(window, 0);
    }
    return TRUE;
}

void CDlgPKPMImport::OnCommand(WORD control)
{
    switch (control) {
    case IDC_BROWSE_STRUCTURE:
        return Browse(kStructureFile);
    case IDC_BROWSE_LOAD:
        return Browse(kLoadFile);
    case IDOK:
        TakePaths();
        isConfirmed = true;
        ::EndDialog(dialog, 0);
        return;
    case IDCANCEL:
        ::EndDialog(dialog, 0);
        return;
    default:
        return;
    }
}

/// Lets the user pick a file. What was typed into the edits and not yet confirmed is lost when one is picked: both
/// edits show the members again.
void CDlgPKPMImport::Browse(const CFileKind& kind)
{
    constexpr std::size_t kLongestPath = 32768;
    std::vector<char> chosen(kLongestPath, '\0');
    OPENFILENAMEA request{};
    request.lStructSize = sizeof(request);
    request.lpstrFilter = kind.filter;
    request.lpstrDefExt = "sat";
    request.lpstrFile = chosen.data();
    request.nMaxFile = static_cast<DWORD>(chosen.size());
    request.Flags = OFN_FILEMUSTEXIST | OFN_LONGNAMES | OFN_EXPLORER;
    if (::GetOpenFileNameA(&request) != 0) {
        this->*kind.path = chosen.data();
        PushPaths();
    }
}

void CDlgPKPMImport::PushPaths() const
{
    ::SetDlgItemTextA(dialog, kStructureFile.edit, structurePath.c_str());
    ::SetDlgItemTextA(dialog, kLoadFile.edit, loadPath.c_str());
}

void CDlgPKPMImport::TakePaths()
{
    structurePath = ControlText(::GetDlgItem(dialog, kStructureFile.edit));
    loadPath = ControlText(::GetDlgItem(dialog, kLoadFile.edit));
}

}  // namespace satwecvt
