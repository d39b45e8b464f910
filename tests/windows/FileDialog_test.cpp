// The system's file dialog, which both "..." buttons open: what it is asked for, what a pick does, and what happens
// when the import dialog is used meanwhile, which stays enabled.
//
// The file dialogs here are Wine's, which have the old arrangement of controls: the name in cmb13, the kinds in cmb1.
// On Windows the dialog without a hook is the shell's, whose inside a test reaches through UI automation only.

#include "windows/ImportDialogTest.h"
#include "windows/LibraryImport.h"
#include "windows/Screenshot.h"

#include <dlgs.h>

#include <algorithm>
#include <atomic>
#include <vector>

namespace satwecvt {
namespace {

using namespace std::string_literals;

class FileDialog : public CImportDialogTest {
protected:
    /// Opens one more file dialog by one of the two browse buttons; null when it does not come.
    HWND Open(int button) const
    {
        const std::vector<HWND> before = OpenWindows();
        Click(dialog, button);
        HWND opened = nullptr;
        WaitUntil([&] { return (opened = FindFileDialogBut(before)) != nullptr; });
        return opened;
    }

    static HWND NameEdit(HWND fileDialog)
    {
        const HWND names = ::GetDlgItem(::GetDlgItem(fileDialog, cmb13), cmb13);
        return ::FindWindowExA(names, nullptr, "Edit", nullptr);
    }

    /// Names a file in the file dialog and confirms it.
    static void Confirm(HWND fileDialog, const std::string& path)
    {
        Paste(NameEdit(fileDialog), path);
        Click(fileDialog, IDOK);
    }

    /// Picks a file. Returns whether the dialog then closed.
    static bool Pick(HWND fileDialog, const std::string& path)
    {
        Confirm(fileDialog, path);
        return WaitUntil([&] { return ::IsWindow(fileDialog) == 0; });
    }

    /// What the system is asked for when a browse button is pushed, answered as `user` does.
    OPENFILENAMEA Asked(int button, const std::function<BOOL(LPOPENFILENAMEA)>& user) const
    {
        std::atomic<bool> isAnswered = false;
        OPENFILENAMEA asked{};
        const CLibraryImport<"GetOpenFileNameA", BOOL(LPOPENFILENAMEA)> files([&](LPOPENFILENAMEA request) {
            asked = *request;
            const BOOL answer = user(request);
            isAnswered = true;
            return answer;
        });
        Click(dialog, button);
        EXPECT_TRUE(WaitUntil([&] { return isAnswered.load(); }));
        Text(dialog);  // the dialog answers only when the button's handler has returned
        return asked;
    }
};

TEST_F(FileDialog, IsAskedForAsTheSystemHasIt)
{
    const struct {
        int button;
        std::string filter;
    } table[] = {{IDC_BROWSE_STRUCTURE, "PKPM Structure Files(*.sat)\0*.sat\0All Files(*.*)\0*.*\0\0"s},
                 {IDC_BROWSE_LOAD, "PKPM Load Files(*.sat)\0*.sat\0All Files(*.*)\0*.*\0\0"s}};
    for (const auto& row : table) {
        std::string filter;
        std::string extension;
        std::string name = "not looked at";
        const OPENFILENAMEA asked = Asked(row.button, [&](LPOPENFILENAMEA request) {
            filter.assign(request->lpstrFilter, row.filter.size());
            extension = request->lpstrDefExt;
            name = request->lpstrFile;
            return FALSE;
        });
        EXPECT_EQ(sizeof(OPENFILENAMEA), asked.lStructSize);
        EXPECT_EQ(row.filter, filter);
        EXPECT_EQ("sat", extension);
        EXPECT_EQ("", name);
        EXPECT_EQ(32768U, asked.nMaxFile);  // Windows' longest path and its end
        EXPECT_EQ(DWORD{OFN_FILEMUSTEXIST | OFN_LONGNAMES | OFN_EXPLORER}, asked.Flags);
        EXPECT_EQ(0U, asked.FlagsEx);
        EXPECT_EQ(nullptr, asked.hwndOwner);
        EXPECT_EQ(nullptr, asked.lpstrInitialDir);
        EXPECT_EQ(nullptr, asked.lpstrTitle);
        EXPECT_EQ(nullptr, asked.lpstrFileTitle);
        EXPECT_EQ(nullptr, asked.lpstrCustomFilter);
        EXPECT_EQ(0U, asked.nFilterIndex);
    }
}

// Neither what was picked before, nor its kind, nor what was typed meanwhile is offered again.
TEST_F(FileDialog, IsAskedForAfreshAfterAPick)
{
    const std::string structure = WriteStructure();
    for (const int button : {IDC_BROWSE_STRUCTURE, IDC_BROWSE_LOAD}) {
        Asked(button, [&](LPOPENFILENAMEA request) {
            structure.copy(request->lpstrFile, structure.size());
            request->nFilterIndex = 2;
            return TRUE;
        });
    }
    ASSERT_EQ(structure, Structure());
    ASSERT_EQ(structure, Load());
    TypeStructure(InFolder("typed.sat"));
    for (const int button : {IDC_BROWSE_STRUCTURE, IDC_BROWSE_LOAD}) {
        std::string name = "not looked at";
        const OPENFILENAMEA asked = Asked(button, [&](LPOPENFILENAMEA request) {
            name = request->lpstrFile;
            return FALSE;
        });
        EXPECT_EQ("", name);
        EXPECT_EQ(0U, asked.nFilterIndex);
        EXPECT_EQ(nullptr, asked.lpstrInitialDir);
    }
}

// The user's folder of the moment, which is the process's, is where the message log goes.
TEST_F(FileDialog, TheWorkingFolderThatItChangesToStays)
{
    const std::string elsewhere = InFolder("elsewhere");
    std::filesystem::create_directory(elsewhere);
    Asked(IDC_BROWSE_STRUCTURE, [&](LPOPENFILENAMEA) {
        ::SetCurrentDirectoryA(elsewhere.c_str());
        return FALSE;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ("", ReadBytes(InFolder("elsewhere\\satwecvt.msg")));
    EXPECT_FALSE(std::filesystem::exists(InFolder("satwecvt.msg")));
}

TEST_F(FileDialog, APickMovesNeitherTheFocusNorTheCaretOfAnEdit)
{
    const std::string structure = WriteStructure();
    Asked(IDC_BROWSE_STRUCTURE, [&](LPOPENFILENAMEA request) {
        structure.copy(request->lpstrFile, structure.size());
        return TRUE;
    });
    ASSERT_EQ(structure, Structure());
    EXPECT_EQ(::GetDlgItem(dialog, IDC_BROWSE_STRUCTURE), FocusOf(call.ThreadId()));
    for (const int edit : {IDC_STRUCTURE_PATH, IDC_LOAD_PATH}) {
        EXPECT_EQ(0, ::SendDlgItemMessageA(dialog, edit, EM_GETSEL, 0, 0));
    }
}

TEST_F(FileDialog, APickOf32767CharactersIsTakenWhole)
{
    const std::string longest = "C:\\" + std::string(32'764, 'x');
    Asked(IDC_BROWSE_STRUCTURE, [&](LPOPENFILENAMEA request) {
        std::copy_n(longest.c_str(), longest.size() + 1, request->lpstrFile);
        return TRUE;
    });
    EXPECT_EQ(longest, Structure());
}

TEST_F(FileDialog, OffersFilesOfItsKindFirst)
{
    const struct {
        int button;
        const char* kind;
    } kinds[] = {{IDC_BROWSE_STRUCTURE, "PKPM Structure Files(*.sat)"}, {IDC_BROWSE_LOAD, "PKPM Load Files(*.sat)"}};
    for (const auto& [button, kind] : kinds) {
        const HWND files = Open(button);
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

TEST_F(FileDialog, PickedFilesAreConverted)
{
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_STRUCTURE), structure));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    EXPECT_EQ("", Load());
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_LOAD), load));
    EXPECT_TRUE(WaitUntil([&] { return Load() == load; })) << Load();
    EXPECT_EQ(structure, Structure());
    EXPECT_TRUE(WaitUntil([this] { return IsDrawnWhole(dialog); }));  // the file dialog stood over it
    EXPECT_TRUE(SaveScreenshot(dialog, "import-dialog-filled"));

    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder("tower.vkm"), call.OutputPath());
    EXPECT_EQ(ExpectedModel(), ReadBytes(call.OutputPath()));
}

// Wine looks whether the file exists before it adds the extension that was not typed, Windows after that: so a name
// without its extension can be picked on Windows alone, and no test here asks for it.

TEST_F(FileDialog, OnlyAFileThatExistsCanBePicked)
{
    const HWND files = Open(IDC_BROWSE_STRUCTURE);
    ASSERT_NE(nullptr, files);
    const std::size_t before = OpenWindows().size();
    Confirm(files, InFolder("no such file.sat"));
    ASSERT_TRUE(WaitUntil([&] { return OpenWindows().size() == before + 1; }));  // the dialog's own complaint
    EXPECT_TRUE(::IsWindow(files));

    EXPECT_TRUE(WaitUntil([&] {
        CloseAllWindows();
        return call.HasEnded();
    }));
    EXPECT_EQ(1, call.Result());
}

TEST_F(FileDialog, APickReplacesAPathTypedIntoTheOtherEdit)
{
    const std::string structure = WriteStructure();
    TypeLoad("typed by hand");
    TypeStructure("typed, too");
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_STRUCTURE), structure));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    EXPECT_EQ("", Load());

    TypeStructure("typed over what was picked");
    const std::string load = WriteLoad();
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_LOAD), load));
    EXPECT_TRUE(WaitUntil([&] { return Load() == load; })) << Load();
    EXPECT_EQ(structure, Structure());
}

TEST_F(FileDialog, CancellingItChangesNothing)
{
    const std::string structure = WriteStructure();
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_STRUCTURE), structure));
    ASSERT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    TypeStructure("typed");
    TypeLoad("typed, too");

    const HWND files = Open(IDC_BROWSE_LOAD);
    ASSERT_NE(nullptr, files);
    Paste(NameEdit(files), structure);
    Click(files, IDCANCEL);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindow(files) == 0; }));

    EXPECT_EQ("typed", Structure());
    EXPECT_EQ("typed, too", Load());
}

TEST_F(FileDialog, CancelOfTheImportDialogAfterPicksGives1)
{
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_STRUCTURE), WriteStructure()));
    ASSERT_TRUE(Pick(Open(IDC_BROWSE_LOAD), WriteLoad()));

    Click(dialog, IDCANCEL);

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

// Windows' dialog moves the working folder to that of the pick, which Wine's does not: the test does it.
TEST_F(FileDialog, TheLogLiesInTheWorkingFolderThatAPickLeaves)
{
    std::filesystem::create_directories(InFolder("models"));
    const std::string structure = WriteStructure(0, "models\\tower.sat");
    Asked(IDC_BROWSE_STRUCTURE, [&](LPOPENFILENAMEA request) {
        std::copy_n(structure.c_str(), structure.size() + 1, request->lpstrFile);
        return ::SetCurrentDirectoryA(InFolder("models").c_str());
    });
    TypeLoad(WriteLoad());

    Click(dialog, IDOK);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder("models"), std::filesystem::current_path().string());
    EXPECT_TRUE(std::filesystem::exists(InFolder("models\\satwecvt.msg")));
    EXPECT_FALSE(std::filesystem::exists(InFolder("satwecvt.msg")));
}

TEST_F(FileDialog, OkBelowItTakesWhatWasTypedWhenNothingIsPicked)
{
    TypeStructure(WriteStructure());
    TypeLoad(WriteLoad());
    const HWND files = Open(IDC_BROWSE_STRUCTURE);
    Click(dialog, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(dialog) == 0; }));
    EXPECT_FALSE(call.HasEnded());

    Click(files, IDCANCEL);

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder("tower.vkm"), call.OutputPath());
}

TEST_F(FileDialog, OkBelowItTakesAPickThatFollows)
{
    const std::string other = WriteStructure(0, "other.sat");
    TypeStructure(WriteStructure());
    TypeLoad(WriteLoad());
    const HWND files = Open(IDC_BROWSE_STRUCTURE);
    Click(dialog, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(dialog) == 0; }));

    ASSERT_TRUE(Pick(files, other));

    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(InFolder("other.vkm"), call.OutputPath());
    EXPECT_EQ(ExpectedModel(), ReadBytes(call.OutputPath()));
}

TEST_F(FileDialog, CloseBelowItGives1WhateverIsPicked)
{
    TypeStructure(WriteStructure());
    TypeLoad(WriteLoad());
    const HWND files = Open(IDC_BROWSE_STRUCTURE);
    ::PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(dialog) == 0; }));

    ASSERT_TRUE(Pick(files, InFolder("tower.sat")));

    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

// The dialog that was opened last goes on first: the one below waits for it, even when it is confirmed before.
TEST_F(FileDialog, ASecondOneBelowItCanBePickedInAnyOrder)
{
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    const HWND first = Open(IDC_BROWSE_STRUCTURE);
    const HWND second = Open(IDC_BROWSE_LOAD);
    ASSERT_NE(nullptr, second);
    Confirm(first, structure);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(first) == 0; }));
    EXPECT_EQ("", Structure());

    ASSERT_TRUE(Pick(second, load));

    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
    EXPECT_EQ(load, Load());
    Click(dialog, IDOK);
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(FileDialog, OfTwoForOneFileTheFirstThatWasOpenedHasTheLastWord)
{
    const std::string structure = WriteStructure();
    const HWND first = Open(IDC_BROWSE_STRUCTURE);
    const HWND second = Open(IDC_BROWSE_STRUCTURE);
    ASSERT_NE(nullptr, second);
    ASSERT_TRUE(Pick(second, WriteStructure(0, "other.sat")));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == InFolder("other.sat"); })) << Structure();
    ASSERT_TRUE(Pick(first, structure));
    EXPECT_TRUE(WaitUntil([&] { return Structure() == structure; })) << Structure();
}

}  // namespace
}  // namespace satwecvt
