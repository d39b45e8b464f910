#include "ui/win32/resource.h"
#include "windows/DialogTemplate.h"
#include "windows/HostWindows.h"
#include "windows/LibraryCall.h"
#include "windows/Screenshot.h"
#include "windows/WindowsTest.h"

#include <dlgs.h>

#include <filesystem>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class ImportDialog : public CWindowsTest {
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

    /// Opens the file dialog by one of the two browse buttons; null when it does not come.
    HWND OpenFileDialog(int button) const
    {
        Click(dialog, button);
        return WaitFor(FindFileDialog);
    }

    static HWND NameEdit(HWND fileDialog)
    {
        const HWND names = ::GetDlgItem(::GetDlgItem(fileDialog, cmb13), cmb13);
        return ::FindWindowExA(names, nullptr, "Edit", nullptr);
    }

    /// Names a file in the file dialog and confirms it. Returns whether the dialog then closed.
    static bool Pick(HWND fileDialog, const std::string& path)
    {
        Type(NameEdit(fileDialog), path);
        Click(fileDialog, IDOK);
        return WaitUntil([&] { return ::IsWindow(fileDialog) == 0; });
    }

    void ExpectNothingWritten() const
    {
        EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
        for (const auto& entry : fs::directory_iterator(folder.Path())) {
            EXPECT_EQ(".sat", entry.path().extension().string()) << entry.path();
        }
    }

    mutable CLibraryCall call;
    HWND dialog = nullptr;
};

TEST_F(ImportDialog, StandsAsInTheTemplate)
{
    constexpr DWORD kEdit = WS_TABSTOP | ES_AUTOHSCROLL;  // Wine's edit takes WS_BORDER off and draws the border itself
    constexpr DWORD kButton = WS_TABSTOP | BS_PUSHBUTTON;
    ExpectTemplate(dialog, {243, 80},
                   {{-1, "button", "Structure File", {7, 1, 229, 29}, BS_GROUPBOX},
                    {8002, "edit", "", {14, 12, 196, 12}, kEdit},
                    {8003, "button", "...", {213, 12, 16, 11}, kButton},
                    {-1, "button", "Load File", {7, 31, 229, 29}, BS_GROUPBOX},
                    {8001, "edit", "", {14, 42, 196, 12}, kEdit},
                    {8004, "button", "...", {213, 42, 16, 11}, kButton},
                    {IDOK, "button", "OK", {144, 63, 45, 12}, WS_TABSTOP | BS_DEFPUSHBUTTON},
                    {IDCANCEL, "button", "Cancel", {191, 63, 45, 12}, kButton}});
    ExpectNothingCutOffOrCovered(dialog);

    EXPECT_EQ(kImportTitle, Text(dialog));
    EXPECT_EQ("Tahoma", FontName(::GetDlgItem(dialog, IDOK)));
    EXPECT_EQ(8, FontPoints(::GetDlgItem(dialog, IDOK)));
    constexpr LONG_PTR kFrame = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    EXPECT_EQ(kFrame, ::GetWindowLongPtrA(dialog, GWL_STYLE) & (kFrame | WS_THICKFRAME | WS_MINIMIZEBOX));
    EXPECT_TRUE(::GetWindowLongPtrA(dialog, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME);
    EXPECT_EQ(nullptr, ::GetWindow(dialog, GW_OWNER));
}

TEST_F(ImportDialog, StartsInTheStructureFilesEdit)
{
    EXPECT_TRUE(WaitUntil([&] {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof(thread);
        ::GetGUIThreadInfo(call.ThreadId(), &thread);
        return thread.hwndFocus == ::GetDlgItem(dialog, IDC_STRUCTURE_PATH);
    }));
}

TEST_F(ImportDialog, TabGoesThroughTheControlsInTheirOrderOnScreen)
{
    const int order[] = {IDC_STRUCTURE_PATH, IDC_BROWSE_STRUCTURE, IDC_LOAD_PATH, IDC_BROWSE_LOAD, IDOK,
                         IDCANCEL,           IDC_STRUCTURE_PATH};
    for (std::size_t i = 0; i + 1 < std::size(order); ++i) {
        const HWND next = ::GetNextDlgTabItem(dialog, ::GetDlgItem(dialog, order[i]), FALSE);
        EXPECT_EQ(order[i + 1], ::GetDlgCtrlID(next));
    }
}

TEST_F(ImportDialog, CancelGives1AndWritesNothing)
{
    TypeStructure(WriteStructure());
    TypeLoad(WriteLoad());

    Click(dialog, IDCANCEL);

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, EscapeCancels)
{
    ::PostMessageA(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), WM_KEYDOWN, VK_ESCAPE, 1);

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, TheCloseBoxCancels)
{
    ::PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, EnterConfirms)
{
    TypeStructure(WriteStructure());
    TypeLoad(WriteLoad());

    ::PostMessageA(::GetDlgItem(dialog, IDC_LOAD_PATH), WM_KEYDOWN, VK_RETURN, 1);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(ImportDialog, BothPathsEmptyGiveMinus1)
{
    Click(dialog, IDOK);

    EXPECT_EQ(-1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, AnEmptyStructurePathGivesMinus1)
{
    TypeLoad(WriteLoad());

    Click(dialog, IDOK);

    EXPECT_EQ(-1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, AnEmptyLoadPathGivesMinus1)
{
    TypeStructure(WriteStructure());

    Click(dialog, IDOK);

    EXPECT_EQ(-1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, TypedPathsAreTakenAsTyped)
{
    const std::string odd = InFolder(" a file (of no kind).x~y");
    fs::rename(WriteStructure(), odd);
    TypeStructure(odd);
    TypeLoad(WriteLoad());

    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder(" a file (of no kind).vkm"), call.OutputPath());
    EXPECT_EQ(ExpectedModel(), ReadBytes(call.OutputPath()));
}

TEST_F(ImportDialog, APathLongerThan260CharactersIsTakenWhole)
{
    std::string longWay = folder.Path().string();
    while (longWay.size() < 400) {
        longWay += "\\.";
    }
    WriteStructure();
    TypeStructure(longWay + "\\tower.sat");
    TypeLoad(WriteLoad());

    EXPECT_EQ(longWay + "\\tower.sat", Structure());
    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(longWay + "\\tower.vkm", call.OutputPath());
}

// The file dialogs here are Wine's, which have the old arrangement of controls: the name in cmb13, the kinds in cmb1.
// On Windows the dialog without a hook is the shell's, whose inside a test reaches through UI automation only.

TEST_F(ImportDialog, BrowsingOffersFilesOfItsKindFirst)
{
    struct {
        int button;
        const char* kind;
    } const kinds[] = {{IDC_BROWSE_STRUCTURE, "PKPM Structure Files(*.sat)"},
                       {IDC_BROWSE_LOAD, "PKPM Load Files(*.sat)"}};
    for (const auto& [button, kind] : kinds) {
        const HWND files = OpenFileDialog(button);
        ASSERT_NE(nullptr, files);
        const HWND offered = ::GetDlgItem(files, cmb1);
        ASSERT_TRUE(WaitUntil([&] { return ::SendMessageA(offered, CB_GETCOUNT, 0, 0) == 2; }));
        char text[64]{};
        ::SendMessageA(offered, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(kind, text);
        ::SendMessageA(offered, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ("All Files(*.*)", text);
        EXPECT_EQ(0, ::SendMessageA(offered, CB_GETCURSEL, 0, 0));
        EXPECT_EQ("", Text(NameEdit(files)));
        Click(files, IDCANCEL);
        ASSERT_TRUE(WaitUntil([&] { return ::IsWindow(files) == 0; }));
    }
}

TEST_F(ImportDialog, PickedFilesAreConverted)
{
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_STRUCTURE), structure));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    EXPECT_EQ("", Load());
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_LOAD), load));
    EXPECT_TRUE(WaitUntil([&] { return Load() == load; })) << Load();
    EXPECT_EQ(structure, Structure());
    ::Sleep(500);  // the file dialog stood over it: it is being drawn again
    EXPECT_TRUE(SaveScreenshot(dialog, "import-dialog-filled"));

    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder("tower.vkm"), call.OutputPath());
    EXPECT_EQ(ExpectedModel(), ReadBytes(call.OutputPath()));
}

// Wine looks whether the file exists before it adds the extension that was not typed, Windows after that: so a name
// without its extension can be picked on Windows alone, and no test here asks for it.

TEST_F(ImportDialog, OnlyAFileThatExistsCanBePicked)
{
    const HWND files = OpenFileDialog(IDC_BROWSE_STRUCTURE);
    ASSERT_NE(nullptr, files);
    Type(NameEdit(files), InFolder("no such file.sat"));
    const std::size_t before = OpenWindows().size();
    Click(files, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return OpenWindows().size() == before + 1; }));  // the dialog's own complaint
    EXPECT_TRUE(::IsWindow(files));

    EXPECT_TRUE(WaitUntil([&] {
        CloseAllWindows();
        return call.HasEnded();
    }));
    EXPECT_EQ(1, call.Result());
}

TEST_F(ImportDialog, APushAfterBrowsingReplacesAPathTypedIntoTheOtherEdit)
{
    const std::string structure = WriteStructure();
    TypeLoad("typed by hand");
    TypeStructure("typed, too");
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_STRUCTURE), structure));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    EXPECT_EQ("", Load());

    TypeStructure("typed over what was picked");
    const std::string load = WriteLoad();
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_LOAD), load));
    EXPECT_TRUE(WaitUntil([&] { return Load() == load; })) << Load();
    EXPECT_EQ(structure, Structure());
}

TEST_F(ImportDialog, CancellingTheFileDialogChangesNothing)
{
    const std::string structure = WriteStructure();
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_STRUCTURE), structure));
    ASSERT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    TypeStructure("typed");
    TypeLoad("typed, too");

    const HWND files = OpenFileDialog(IDC_BROWSE_LOAD);
    ASSERT_NE(nullptr, files);
    Type(NameEdit(files), structure);
    Click(files, IDCANCEL);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindow(files) == 0; }));
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(dialog) != 0; }));

    EXPECT_EQ("typed", Structure());
    EXPECT_EQ("typed, too", Load());
}

TEST_F(ImportDialog, CancelAfterBrowsingGives1)
{
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_STRUCTURE), WriteStructure()));
    ASSERT_TRUE(Pick(OpenFileDialog(IDC_BROWSE_LOAD), WriteLoad()));

    Click(dialog, IDCANCEL);

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

TEST_F(ImportDialog, RemembersNothingFromCallToCall)
{
    TypeStructure("typed");
    TypeLoad("typed, too");
    Click(dialog, IDOK);
    const HWND box = WaitFor(FindMessageBox);
    ASSERT_NE(nullptr, box);
    CloseBox(box);
    EXPECT_EQ(-1, call.Result());

    CLibraryCall second;
    dialog = WaitFor(FindImportDialog);
    EXPECT_EQ("", Structure());
    EXPECT_EQ("", Load());
    Click(dialog, IDCANCEL);
    EXPECT_EQ(1, second.Result());
}

TEST_F(ImportDialog, IsDrawnWhole)
{
    ::SetForegroundWindow(dialog);
    ::Sleep(200);  // the screen follows the window
    EXPECT_TRUE(SaveScreenshot(dialog, "import-dialog"));
}

}  // namespace
}  // namespace satwecvt
