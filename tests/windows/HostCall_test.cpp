#include "support/Conversion.h"
#include "ui/win32/resource.h"
#include "windows/HostWindow.h"
#include "windows/LibraryCall.h"
#include "windows/LibraryWindows.h"
#include "windows/Processes.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <filesystem>
#include <thread>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class HostCall : public CWindowsTest {
protected:
    /// Does something on the library's thread at the step with this number.
    void AtStep(std::int64_t step, std::function<void(HWND)> act)
    {
        watch.onStep = [=](std::int64_t now, HWND window) {
            if (now == step) {
                act(window);
            }
        };
    }

    /// Reads the message of the one box that has to come, closes it, and returns the message.
    static std::string AnswerBox()
    {
        const HWND box = WaitFor(FindMessageBox);
        const std::string message = BoxMessage(box);
        CloseBox(box);
        WaitUntil([&] { return ::IsWindow(box) == 0; });
        return message;
    }

    CStepWatch watch;
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

TEST_F(HostCall, AWorkerThreadOfTheHostIsServedWhileTheHostsWindowLives)
{
    std::atomic<bool> isOver = false;
    std::atomic<HWND> hostWindow = nullptr;
    std::thread windowThread([&] {
        const CHostWindow window;
        hostWindow = window.Handle();
        PumpUntil([&] { return isOver.load(); });
    });
    ASSERT_TRUE(WaitUntil([&] { return hostWindow.load() != nullptr; }));
    const auto isAlive = [&] { return ::SendMessageTimeoutA(hostWindow, WM_NULL, 0, 0, 0, 10'000, nullptr) != 0; };
    AtStep(9, [&](HWND) { EXPECT_TRUE(isAlive()); });
    {
        CLibraryCall worker;
        ASSERT_NE(nullptr, WaitFor(FindImportDialog));
        EXPECT_TRUE(isAlive());
        ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
        EXPECT_EQ(0, worker.Result());
        EXPECT_TRUE(isAlive());
    }
    isOver = true;
    windowThread.join();
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, AMessageThatAnotherThreadSentIsNoHindrance)
{
    int result = CLibraryCall::kNoResult;
    std::atomic<HWND> hostWindow = nullptr;
    CLibraryCall host([&](std::string& path) {
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
    std::thread sender([&] { ::SendMessageA(hostWindow, WM_APP, 0, 0); });
    EXPECT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, host.Result());
    sender.join();
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
    EXPECT_EQ(kImportTitle, Text(WaitFor(FindImportDialog)));
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

/// The library's memory, which the test can bring to its end: there are small pieces left. (Where there are none either,
/// MinGW's run-time library ends the process before an exception is thrown.)
class HostCallWithoutMemory : public HostCall {
protected:
    static constexpr std::size_t kLargePiece = 4096;
    std::atomic<bool> isOver = false;
    CLibraryImport<"malloc", void*(std::size_t)> memory{
        [this](std::size_t size) { return isOver && size >= kLargePiece ? nullptr : memory.System(size); }};
};

TEST_F(HostCallWithoutMemory, ABrowseButtonEndsTheImportDialog)
{
    CLibraryCall call;
    const HWND dialog = WaitFor(FindImportDialog);
    isOver = true;
    Click(dialog, IDC_BROWSE_STRUCTURE);
    EXPECT_EQ(1, call.Result());
}

TEST_F(HostCallWithoutMemory, OkEndsTheImportDialogAsCancelDoes)
{
    CLibraryCall call;
    const HWND dialog = WaitFor(FindImportDialog);
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), std::string(kLargePiece, 'x'));
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    isOver = true;
    Click(dialog, IDOK);
    EXPECT_EQ(1, call.Result());
}

TEST_F(HostCallWithoutMemory, TheConversionFailsWithoutABox)
{
    AtStep(9, [this](HWND) { isOver = true; });
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
    EXPECT_FALSE(::IsWindow(watch.Window()));
}

TEST_F(HostCallWithoutMemory, TheCallFailsBeforeTheConversion)
{
    const CLibraryImport<"SetCursor", HCURSOR(HCURSOR)> cursor([this](HCURSOR wanted) {
        isOver = true;
        return ::SetCursor(wanted);
    });
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ(0, watch.Steps());
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
            return IDOK;
        });
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(InFolder("no such file.sat"), WriteLoad()));
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ("PKPM Import", caption);
    EXPECT_EQ(static_cast<UINT>(MB_OK | MB_ICONEXCLAMATION | MB_TASKMODAL), kind);
    EXPECT_EQ(watch.Window(), owner);
}

/// What a process may leak.
struct CResources {
    std::size_t windows;
    std::size_t handles;  // of the kernel
    std::size_t gdiObjects;
    std::size_t userObjects;
    std::size_t kilobytes;
};

/// Wine does not count a process's handles, but gives out the lowest one that is free.
std::size_t LowestFreeHandle()
{
    const HANDLE lowest = ::CreateEventA(nullptr, FALSE, FALSE, nullptr);
    ::CloseHandle(lowest);
    return reinterpret_cast<std::uintptr_t>(lowest) / 4;
}

/// Nor does it count GDI objects: the process's table of them tells, which begins where the process's description says.
std::size_t GdiObjectsInTable()
{
    struct CEntry {
        std::uint64_t object;
        std::uint32_t owner;
        std::uint16_t unique;
        std::uint8_t type;
        std::uint8_t flags;
        std::uint64_t userPointer;
    };
    constexpr std::size_t kEntries = 0x4000;
    constexpr std::size_t kPlaceInDescription = 0xF8;
    PROCESS_BASIC_INFORMATION about{};
    ::NtQueryInformationProcess(::GetCurrentProcess(), ProcessBasicInformation, &about, sizeof(about), nullptr);
    const CEntry* table = nullptr;
    std::memcpy(&table, reinterpret_cast<const char*>(about.PebBaseAddress) + kPlaceInDescription, sizeof(table));
    const auto isTaken = [](const CEntry& entry) { return entry.type != 0; };
    return table == nullptr ? 0 : static_cast<std::size_t>(std::count_if(table, table + kEntries, isTaken));
}

std::size_t Windows()
{
    std::size_t count = 0;
    ::EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            *reinterpret_cast<std::size_t*>(parameter) += process == ::GetCurrentProcessId() ? 1U : 0U;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

CResources Resources()
{
    const HANDLE self = ::GetCurrentProcess();
    PROCESS_MEMORY_COUNTERS_EX memory{};
    ::GetProcessMemoryInfo(self, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
    CResources resources{};
    resources.windows = Windows();
    resources.handles = LowestFreeHandle();
    resources.gdiObjects = std::max<std::size_t>(::GetGuiResources(self, GR_GDIOBJECTS), GdiObjectsInTable());
    resources.userObjects = ::GetGuiResources(self, GR_USEROBJECTS);
    resources.kilobytes = std::max(memory.PrivateUsage, memory.WorkingSetSize) / 1024;
    return resources;
}

/// Conversions one after the other on one thread, as a host with one window thread makes them.
void ConvertOften(int times, const std::string& structure, const std::string& load)
{
    CLibraryCall call([=](std::string& path) {
        int results = 0;
        for (int i = 0; i < times; ++i) {
            results += ConvertFile2(path);
        }
        return results;
    });
    HWND previous = nullptr;
    for (int i = 0; i < times; ++i) {
        HWND dialog = nullptr;
        ASSERT_TRUE(WaitUntil([&] { return (dialog = FindImportDialog()) != nullptr && dialog != previous; }));
        ASSERT_TRUE(ImportFiles(structure, load));
        previous = dialog;
    }
    EXPECT_EQ(0, call.Result());
}

// Wine counts no user objects: there they stay 0, and the windows have to tell.
TEST_F(HostCall, TwoHundredConversionsLeaveNothingBehind)
{
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    ConvertOften(20, structure, load);
    const CResources before = Resources();

    ConvertOften(200, structure, load);

    const CResources after = Resources();
    std::printf("windows %zu -> %zu, handles %zu -> %zu, GDI %zu -> %zu, user %zu -> %zu, memory %zu -> %zu KB\n",
                before.windows, after.windows, before.handles, after.handles, before.gdiObjects, after.gdiObjects,
                before.userObjects, after.userObjects, before.kilobytes, after.kilobytes);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LE(after.handles, before.handles + 4);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 4);
    EXPECT_LE(after.userObjects, before.userObjects + 4);
    EXPECT_LE(after.kilobytes, before.kilobytes + 1024);
}

}  // namespace
}  // namespace satwecvt
