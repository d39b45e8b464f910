#include "windows/DialogTemplate.h"
#include "windows/ImportDialogTest.h"
#include "windows/Screenshot.h"

namespace satwecvt {
namespace {

using ImportDialog = CImportDialogTest;

TEST_F(ImportDialog, StandsAsInTheTemplate)
{
    constexpr DWORD kEdit = WS_TABSTOP | ES_AUTOHSCROLL;  // the system makes its border a sunken edge
    constexpr DWORD kBorder = WS_EX_NOPARENTNOTIFY | WS_EX_CLIENTEDGE;
    constexpr DWORD kButton = WS_TABSTOP | BS_PUSHBUTTON;
    ExpectTemplate(
        dialog,
        {"PKPM Import", {243, 80}, DS_MODALFRAME | DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU, "Tahoma", 8},
        {{-1, "button", "Structure File", {7, 1, 229, 29}, BS_GROUPBOX},
         {8002, "edit", "", {14, 12, 196, 12}, kEdit, kBorder},
         {8003, "button", "...", {213, 12, 16, 11}, kButton},
         {-1, "button", "Load File", {7, 31, 229, 29}, BS_GROUPBOX},
         {8001, "edit", "", {14, 42, 196, 12}, kEdit, kBorder},
         {8004, "button", "...", {213, 42, 16, 11}, kButton},
         {IDOK, "button", "OK", {144, 63, 45, 12}, WS_TABSTOP | BS_DEFPUSHBUTTON},
         {IDCANCEL, "button", "Cancel", {191, 63, 45, 12}, kButton}});
    ExpectNothingCutOffOrCovered(dialog);
}

TEST_F(ImportDialog, StartsInTheStructureFilesEdit)
{
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(call.ThreadId()) == ::GetDlgItem(dialog, IDC_STRUCTURE_PATH); }));
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
    std::filesystem::rename(WriteStructure(), odd);
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

// Without a limit of ours, an edit takes 30,000 characters and more.
TEST_F(ImportDialog, TheEditsTakeWhateverTheSystemLetsThemTake)
{
    const std::string path = "C:\\" + std::string(29'000, 'x');
    for (const int edit : {IDC_STRUCTURE_PATH, IDC_LOAD_PATH}) {
        Paste(::GetDlgItem(dialog, edit), path);
        EXPECT_EQ(path, Text(dialog, edit));
    }
}

TEST_F(ImportDialog, PathsThatAProgramSetsAreTaken)
{
    ::SetDlgItemTextA(dialog, IDC_STRUCTURE_PATH, WriteStructure().c_str());
    ::SetDlgItemTextA(dialog, IDC_LOAD_PATH, WriteLoad().c_str());

    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(ImportDialog, StandsInTheUpperLeftOfTheScreen)
{
    RECT place{};
    RECT screen{};
    ::GetWindowRect(dialog, &place);
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
    EXPECT_EQ(screen.left, place.left);
    EXPECT_EQ(screen.top, place.top);
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
    EXPECT_TRUE(WaitUntil([this] { return IsDrawnWhole(dialog); }));
    EXPECT_TRUE(SaveScreenshot(dialog, "import-dialog"));
}

}  // namespace
}  // namespace satwecvt
