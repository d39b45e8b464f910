#include "support/Conversion.h"
#include "ui/win32/resource.h"
#include "windows/HostWindows.h"
#include "windows/LibraryCall.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <psapi.h>
#include <winternl.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cfenv>
#include <clocale>
#include <cstring>
#include <filesystem>

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

/// A window of the host whose message handler is its menu.
LRESULT CALLBACK CallLibrary(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP) {
        auto* const host = reinterpret_cast<std::function<void()>*>(lParam);
        (*host)();
        return 0;
    }
    return ::DefWindowProcA(window, message, wParam, lParam);
}

/// Runs host code in a message handler of the host, reached through the library's message pump at step 10.
int ConvertWithHandler(CStepWatch& watch, const std::string& structure, const std::string& load,
                       std::function<void()> act)
{
    HWND hostWindow = nullptr;
    watch.onStep = [&](std::int64_t step, HWND) {
        if (step == 9) {
            ::PostMessageA(hostWindow, WM_APP, 0, reinterpret_cast<LPARAM>(&act));
        }
    };
    CLibraryCall call([&](std::string& path) {
        hostWindow = ::CreateWindowA("Static", "host", WS_OVERLAPPED, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
        ::SetWindowLongPtrA(hostWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CallLibrary));
        const int result = ConvertFile2(path);
        ::DestroyWindow(hostWindow);
        return result;
    });
    EXPECT_TRUE(ImportFiles(structure, load));
    return call.Result();
}

TEST_F(HostCall, ACallFromAMessageHandlerDuringReadingGivesMinus1)
{
    int inner = 0;
    const int outer = ConvertWithHandler(watch, WriteStructure(), WriteLoad(), [&] { inner = ConvertFile(); });
    EXPECT_EQ(-1, inner);
    EXPECT_EQ(0, outer);
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, MessagesOfTheHostAreHandedOutBeforeTheLineIsShown)
{
    std::string shown;
    ConvertWithHandler(watch, WriteStructure(), WriteLoad(),
                       [&] { shown = Text(FindProgressWindow(), IDC_PARSING_LINE); });
    EXPECT_EQ("8", shown);  // the ninth step's; the handler runs within the tenth
}

TEST_F(HostCall, FreeLibraryFromAMessageHandlerDoesNotUnloadRunningCode)
{
    const int result = ConvertWithHandler(watch, WriteStructure(), WriteLoad(), [] {
        for (int times = 0; times < 10; ++times) {
            ::FreeLibrary(::GetModuleHandleA("satwecvt.dll"));
        }
    });
    EXPECT_EQ(0, result);
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
    EXPECT_EQ(Library(), ::GetModuleHandleA("satwecvt.dll"));
}

/// Converts, and returns whether the host's thread then finds a WM_QUIT, with which code.
int QuitCodeAfter(int& result, std::string& path, const std::function<int(std::string&)>& convert)
{
    result = convert(path);
    MSG message{};
    return ::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0 ? static_cast<int>(message.wParam) : -1;
}

TEST_F(HostCall, WmQuitDuringReadingCancelsAndIsPostedAgain)
{
    int quitCode = -1;
    AtStep(9, [](HWND) { ::PostQuitMessage(42); });
    CLibraryCall call([&](std::string& path) {
        int result = 0;
        quitCode = QuitCodeAfter(result, path, ConvertFile2);
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(42, quitCode);
    EXPECT_EQ(10, watch.Steps());
    EXPECT_FALSE(fs::exists(InFolder("tower.vkm")));
    EXPECT_FALSE(fs::exists(InFolder("satwecvt.msg")));
}

TEST_F(HostCall, WmQuitDuringTheImportDialogCancelsAndIsPostedAgain)
{
    int quitCode = -1;
    CLibraryCall call([&](std::string& path) {
        int result = 0;
        quitCode = QuitCodeAfter(result, path, ConvertFile2);
        return result;
    });
    ASSERT_NE(nullptr, WaitFor(FindImportDialog));
    ::PostThreadMessageA(call.ThreadId(), WM_QUIT, 42, 0);
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(42, quitCode);
}

TEST_F(HostCall, TheHostsLocaleChangesNothing)
{
    ASSERT_NE(nullptr, std::setlocale(LC_ALL, "German_Germany.1252"));
    ASSERT_STREQ(",", std::localeconv()->decimal_point);
    CLibraryCall call;
    EXPECT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_STREQ(",", std::localeconv()->decimal_point);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(HostCall, TheHostsFloatingPointStateChangesNothingAndIsGivenBack)
{
    struct CState {
        unsigned control;
        unsigned x87Control;
        int rounding;

        bool operator==(const CState&) const = default;
    };
    constexpr unsigned kFlags = 0x3F;
    const auto state = [] { return CState{_mm_getcsr() & ~kFlags, _control87(0, 0), std::fegetround()}; };
    CState before{};
    CState after{};
    CLibraryCall call([&](std::string& path) {
        const CState atStart = state();
        const unsigned csr = _mm_getcsr();
        std::fesetround(FE_UPWARD);
        _control87(0, _EM_INVALID | _EM_ZERODIVIDE | _EM_OVERFLOW | _EM_INEXACT);
        _mm_setcsr(_mm_getcsr() & ~kFlags &
                   ~static_cast<unsigned>(_MM_MASK_INVALID | _MM_MASK_DIV_ZERO | _MM_MASK_OVERFLOW | _MM_MASK_INEXACT));
        before = state();
        const int result = ConvertFile2(path);
        after = state();
        _mm_setcsr(csr);
        _control87(atStart.x87Control, _MCW_EM | _MCW_RC);
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
    EXPECT_EQ(before, after);
    EXPECT_EQ(FE_UPWARD, after.rounding);
}

TEST_F(HostCall, TheHostsActivationContextIsGivenBack)
{
    HANDLE before = nullptr;
    HANDLE during = nullptr;
    HANDLE after = nullptr;
    AtStep(5, [&](HWND) { ::GetCurrentActCtx(&during); });
    CLibraryCall call([&](std::string& path) {
        ::GetCurrentActCtx(&before);
        const int result = ConvertFile2(path);
        ::GetCurrentActCtx(&after);
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(before, after);
    EXPECT_NE(before, during);
    ::ReleaseActCtx(during);
}

TEST_F(HostCall, AHostInPlainCIsServed)
{
    char program[MAX_PATH]{};
    ::GetModuleFileNameA(nullptr, program, sizeof(program));
    const fs::path bin = fs::path(program).parent_path();
    std::string command = '"' + (bin / "host_c.exe").string() + "\" \"" + (bin / "satwecvt.dll").string() + '"';
    STARTUPINFOA start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION host{};
    ASSERT_NE(0,
              ::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &host));

    const HWND dialog = WaitFor(FindImportDialog, host.dwProcessId);
    Type(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), WriteStructure());
    Type(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    Click(dialog, IDOK);

    DWORD exitCode = STILL_ACTIVE;
    if (::WaitForSingleObject(host.hProcess, 20'000) != WAIT_OBJECT_0) {
        ::TerminateProcess(host.hProcess, 1);
    }
    ::GetExitCodeProcess(host.hProcess, &exitCode);
    ::CloseHandle(host.hThread);
    ::CloseHandle(host.hProcess);
    EXPECT_EQ(100U, exitCode);
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
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
