// A call of the library whose import dialog is open.
#pragma once

#include "ui/win32/resource.h"
#include "windows/LibraryCall.h"
#include "windows/LibraryWindows.h"
#include "windows/WindowsTest.h"

#include <filesystem>
#include <string>

namespace satwecvt {

class CImportDialogTest : public CWindowsTest {
protected:
    void SetUp() override
    {
        dialog = WaitFor(FindImportDialog);
        ASSERT_NE(nullptr, dialog);
    }

    void TearDown() override
    {
        call.End();
        CWindowsTest::TearDown();
    }

    std::string Structure() const { return Text(dialog, IDC_STRUCTURE_PATH); }
    std::string Load() const { return Text(dialog, IDC_LOAD_PATH); }
    void TypeStructure(const std::string& path) const { Type(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), path); }
    void TypeLoad(const std::string& path) const { Type(::GetDlgItem(dialog, IDC_LOAD_PATH), path); }

    void ExpectNothingWritten() const
    {
        EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
            EXPECT_EQ(".sat", entry.path().extension().string()) << entry.path();
        }
    }

    mutable CLibraryCall call;
    HWND dialog = nullptr;
};

}  // namespace satwecvt
