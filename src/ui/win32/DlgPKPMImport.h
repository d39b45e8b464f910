// The dialog "PKPM Import", in which the user picks the structure file and the load file. It only collects two paths:
// it does not check them, open them or remember them.
#pragma once

#include <windows.h>

#include <string>

namespace satwecvt {

class CDlgPKPMImport {
public:
    /// `resources` is the module that holds the dialog template.
    explicit CDlgPKPMImport(HINSTANCE resources) noexcept : module(resources) {}

    /// Runs the dialog, once, without a parent window; returns IDOK when the user confirmed it, IDCANCEL otherwise.
    INT_PTR DoModal();

    /// Hands out the structure path and the load path, as they stood when OK was pressed.
    void GetPaths(std::string& structure, std::string& load) const;

private:
    /// One of the two files: its edit control, what it is called in the file dialog, and the member that holds its
    /// path.
    struct CFileKind {
        int edit;
        const char* filter;
        std::string CDlgPKPMImport::*path;
    };
    static const CFileKind kStructureFile;
    static const CFileKind kLoadFile;

    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(WORD control);
    void Browse(const CFileKind& kind);
    void PushPaths() const;
    void TakePaths();

    HINSTANCE module;
    HWND dialog = nullptr;
    bool isConfirmed = false;
    std::string loadPath;
    std::string structurePath;
};

}  // namespace satwecvt
