#include "support/Conversion.h"
#include "ui/win32/resource.h"
#include "windows/HostWindow.h"
#include "windows/LibraryWindows.h"
#include "windows/Processes.h"
#include "windows/ProgressTest.h"

#include <atomic>
#include <filesystem>
#include <thread>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class HostCall : public CProgressTest {
protected:
    /// Reads the message of the one box that has to come, closes it, and returns the message.
    static std::string AnswerBox()
    {
        const HWND box = WaitFor(FindMessageBox);
        const std::string message = BoxMessage(box);
        CloseBox(box);
        WaitUntil([&] { return ::IsWindow(box) == 0; });
        return message;
    }
};

TEST_F(HostCall, ConvertFileGivesTheSameResults)
{
    const auto convertFile = [](std::string&) { return ConvertFile(); };
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    {
        CLibraryCall call(convertFile);
        ASSERT_TRUE(ImportFiles(structure, load));
        EXPECT_EQ(0, call.Result());
        EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
        EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
    }
    {
        CLibraryCall call(convertFile);
        ASSERT_TRUE(ImportFiles(structure, ""));
        EXPECT_EQ(-1, call.Result());
    }
    {
        CLibraryCall call(convertFile);
        Click(WaitFor(FindImportDialog), IDCANCEL);
        EXPECT_EQ(1, call.Result());
    }
    {
        AtStep(7, [](HWND window) { Click(window, IDC_CANCEL_READING); });
        CLibraryCall call(convertFile);
        ASSERT_TRUE(ImportFiles(structure, load));
        EXPECT_EQ(1, call.Result());
    }
}

TEST_F(HostCall, TheOutputPathIsCutAtTheLastDotOfTheWholePath)
{
    fs::create_directories(InFolder("rev1.2"));
    const std::string load = WriteLoad();
    const std::string paths[][2] = {{"tower.sat", "tower.vkm"}, {"tower", "tower.vkm"}, {"rev1.2\\tower", "rev1.vkm"}};
    for (const auto& [structure, model] : paths) {
        CLibraryCall call;
        ASSERT_TRUE(ImportFiles(WriteStructure(0, structure), load));
        EXPECT_EQ(0, call.Result());
        EXPECT_EQ(InFolder(model), call.OutputPath());
        EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder(model)));
        fs::remove(InFolder(model));
    }
}

TEST_F(HostCall, ARelativePathStaysRelative)
{
    WriteStructure();
    WriteLoad();
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles("./tower.sat", "load.sat"));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ("./tower.vkm", call.OutputPath());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

// tower.sat is there, and each of these paths would be its, were it mended.
TEST_F(HostCall, AWrongPathIsNotMended)
{
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    for (const std::string& path : {'"' + structure + '"', InFolder("tower"), ' ' + structure, std::string(" ")}) {
        SCOPED_TRACE(path);
        CLibraryCall call;
        ASSERT_TRUE(ImportFiles(path, load));
        EXPECT_EQ("Can't open structure input file!", AnswerBox());
        EXPECT_EQ(-1, call.Result());
    }
}

// The file's name has a character that the code page has beyond ASCII.
TEST_F(HostCall, APathIsOfTheCodePageOfTheProcess)
{
    char letter[8]{};
    ASSERT_NE(0, ::WideCharToMultiByte(CP_ACP, 0, L"\u00F6", 1, letter, sizeof(letter), nullptr, nullptr));
    const std::string base = InFolder("h") + letter + "he";
    const std::string model = base + ".vkm";
    ASSERT_TRUE(::MoveFileA(WriteStructure().c_str(), (base + ".sat").c_str()));
    {
        CLibraryCall call;
        ASSERT_TRUE(ImportFiles(base + ".sat", WriteLoad()));
        EXPECT_EQ(0, call.Result());
        EXPECT_EQ(model, call.OutputPath());
    }
    const HANDLE keeper = ::CreateFileA(model.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, keeper);
    {
        CLibraryCall call;
        EXPECT_TRUE(ImportFiles(base + ".sat", WriteLoad()));
        EXPECT_EQ(model, AnswerBox().substr(0, model.size()));
        EXPECT_EQ(0, call.Result());
    }
    ::CloseHandle(keeper);
}

TEST_F(HostCall, TheLogLiesInTheWorkingFolder)
{
    fs::create_directories(InFolder("models"));
    WriteBytes(InFolder("satwecvt.msg"), "old log");
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(0, "models\\tower.sat"), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ("", ReadBytes(InFolder("satwecvt.msg")));
    EXPECT_FALSE(fs::exists(InFolder("models\\satwecvt.msg")));
}

TEST_F(HostCall, AMissingStructureFileIsToldInOneBox)
{
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(InFolder("no such file.sat"), InFolder("nor this one.sat")));
    EXPECT_EQ("Can't open structure input file!", AnswerBox());
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
    EXPECT_FALSE(fs::exists(InFolder("satwecvt.msg")));
}

TEST_F(HostCall, AMissingLoadFileIsToldInOneBox)
{
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), InFolder("no such file.sat")));
    EXPECT_EQ("Can't open load file!", AnswerBox());
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
    EXPECT_FALSE(fs::exists(InFolder("tower.vkm")));
}

// A folder that forbids writing means nothing to Wine's superuser; a file that another program keeps for itself does.
TEST_F(HostCall, AnOutputThatCannotBeWrittenIsToldInOneBoxAndGives0)
{
    WriteBytes(InFolder("tower.vkm"), "kept by another program");
    const HANDLE keeper =
        ::CreateFileA(InFolder("tower.vkm").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, keeper);
    CLibraryCall call;
    EXPECT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    const std::string message = AnswerBox();
    EXPECT_EQ(0, call.Result());
    ::CloseHandle(keeper);

    const std::string named = InFolder("tower.vkm") + " could not be written: ";
    EXPECT_EQ(named, message.substr(0, named.size()));
    EXPECT_GT(message.size(), named.size()) << "no cause";
    EXPECT_EQ(InFolder("tower.vkm"), call.OutputPath());
    EXPECT_EQ("kept by another program", ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, ACallDuringTheImportDialogGivesMinus1)
{
    CLibraryCall call;
    ASSERT_NE(nullptr, WaitFor(FindImportDialog));
    std::string path = "mine";
    EXPECT_EQ(-1, ConvertFile2(path));
    EXPECT_EQ(-1, ConvertFile());
    EXPECT_EQ("mine", path);
    EXPECT_EQ(1U, OpenWindows().size());
    Click(WaitFor(FindImportDialog), IDCANCEL);
    EXPECT_EQ(1, call.Result());
}

TEST_F(HostCall, ACallThatIsTurnedAwayBringsNoWindowToTheFront)
{
    CLibraryCall call;
    const HWND dialog = WaitFor(FindImportDialog);
    // It comes to the front at a moment of its own: another window that comes before would have to give way.
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == dialog && FocusOf(call.ThreadId()) != nullptr; }));
    {
        const CHostWindow elsewhere;
        ASSERT_TRUE(elsewhere.IsInFront());
        EXPECT_EQ(-1, ConvertFile());
        EXPECT_TRUE(elsewhere.IsInFront());
    }
    Click(dialog, IDCANCEL);
    EXPECT_EQ(1, call.Result());
}

TEST_F(HostCall, FreeLibraryFromAMessageHandlerDoesNotUnloadRunningCode)
{
    const CHostWindow* host = nullptr;
    AtStep(9, [&](HWND) { ::PostMessageW(host->Handle(), WM_APP, 0, 0); });
    CLibraryCall call([&](std::string& path) {
        const CHostWindow window([](const MSG& message) {
            for (int times = 0; message.message == WM_APP && times < 10; ++times) {
                ::FreeLibrary(::GetModuleHandleA("satwecvt.dll"));
            }
        });
        host = &window;
        return ConvertFile2(path);
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
    EXPECT_EQ(Library(), ::GetModuleHandleA("satwecvt.dll"));
}

TEST_F(HostCall, AHostInPlainCIsServed)
{
    const CProcess host("host_c.exe", '"' + BesideTheTest("satwecvt.dll") + '"');
    const HWND dialog = WaitFor(FindImportDialog, host.Id());
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), WriteStructure());
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    Click(dialog, IDOK);
    EXPECT_EQ(100U, host.ExitCode());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, FreeLibraryAfterACallThatTheUserLeftUnloadsNothing)
{
    const CProcess host("host_c.exe", '"' + BesideTheTest("satwecvt.dll") + '"');
    Click(WaitFor(FindImportDialog, host.Id()), IDCANCEL);
    EXPECT_EQ(101U, host.ExitCode());
}

TEST_F(HostCall, ALibraryOfAnotherNameFindsItsDialogs)
{
    const std::string renamed = InFolder("converter.dll");
    fs::copy_file(BesideTheTest("satwecvt.dll"), renamed);
    const CProcess host("host_c.exe", '"' + renamed + '"');
    const HWND dialog = WaitFor(FindImportDialog, host.Id());
    ASSERT_NE(nullptr, dialog);
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), WriteStructure());
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    Click(dialog, IDOK);
    EXPECT_EQ(100U, host.ExitCode());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, AWorkerThreadOfTheHostIsServedWhileTheHostsWindowLives)
{
    const CHostWindowThread host;
    AtStep(9, [&](HWND) { EXPECT_TRUE(host.IsAlive()); });
    CLibraryCall worker;
    ASSERT_NE(nullptr, WaitFor(FindImportDialog));
    EXPECT_TRUE(host.IsAlive());
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, worker.Result());
    EXPECT_TRUE(host.IsAlive());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, AMessageThatAnotherThreadSentIsNoHindrance)
{
    std::jthread sender;  // ends after the host, which it waits for
    std::atomic<HWND> hostWindow = nullptr;
    CLibraryCall host([&](std::string& path) {
        int result = CLibraryCall::kNoResult;
        const CHostWindow window([&](const MSG& message) {
            if (message.message == WM_APP) {
                EXPECT_TRUE(::InSendMessage());
                result = ConvertFile2(path);
            }
        });
        hostWindow = window.Handle();
        PumpUntil([&] { return result != CLibraryCall::kNoResult; });
        return result;
    });
    ASSERT_TRUE(WaitUntil([&] { return hostWindow.load() != nullptr; }));
    sender = std::jthread([&] { ::SendMessageA(hostWindow, WM_APP, 0, 0); });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, host.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

// windows_test.rc has dialogs of the numbers of the library's.
TEST_F(HostCall, AHostWithDialogsOfTheSameNumbersSeesTheLibrarys)
{
    for (const int number : {IDD_IMPORT, IDD_PROGRESS}) {
        ASSERT_NE(nullptr, ::FindResourceA(nullptr, MAKEINTRESOURCEA(number), MAKEINTRESOURCEA(5)));  // RT_DIALOG
    }
    std::string progressTitle;
    AtStep(1, [&](HWND window) { progressTitle = Text(window); });
    CLibraryCall call;
    ASSERT_NE(nullptr, WaitFor(FindImportDialog));
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(kProgressTitle, progressTitle);
}

// A copy is a library of its own, which nobody has called yet.
TEST_F(HostCall, FreeLibraryBeforeAnyCallUnloads)
{
    const std::string copy = InFolder("copy.dll");
    fs::copy_file(BesideTheTest("satwecvt.dll"), copy);
    const HMODULE library = ::LoadLibraryA(copy.c_str());
    ASSERT_NE(nullptr, library);
    ASSERT_NE(Library(), library);
    EXPECT_TRUE(::FreeLibrary(library));
    EXPECT_EQ(nullptr, ::GetModuleHandleA("copy.dll"));
}

TEST_F(HostCall, MessageBoxesAreOfTheUsualKind)
{
    std::string caption;
    UINT kind = 0;
    HWND owner = nullptr;
    const CLibraryImport<"MessageBoxA", int(HWND, LPCSTR, LPCSTR, UINT)> box(
        [&](HWND window, LPCSTR, LPCSTR title, UINT flags) {
            caption = title;
            kind = flags;
            owner = window;
            EXPECT_EQ(::GetActiveWindow(), window);
            EXPECT_EQ(::LoadCursor(nullptr, IDC_WAIT), ::GetCursor());
            return IDOK;
        });
    fs::create_directory(InFolder("tower.vkm"));  // stands where the model has to go
    for (const std::string& structure : {InFolder("no such file.sat"), WriteStructure()}) {
        SCOPED_TRACE(structure);
        caption.clear();
        CLibraryCall call;
        ASSERT_TRUE(ImportFiles(structure, WriteLoad()));
        EXPECT_NE(1, call.Result());
        EXPECT_EQ("PKPM Import", caption);
        EXPECT_EQ(static_cast<UINT>(MB_OK | MB_ICONEXCLAMATION | MB_TASKMODAL), kind);
        EXPECT_EQ(watch.Window(), owner);
    }
}

}  // namespace
}  // namespace satwecvt
