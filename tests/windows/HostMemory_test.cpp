// What the library does when memory ends, and that it keeps none.

#include "ui/win32/resource.h"
#include "windows/LibraryWindows.h"
#include "windows/ProgressTest.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace satwecvt {
namespace {

/// The library's memory, which the test can bring to its end: there are small pieces left. (Where there are none
/// either, MinGW's run-time library ends the process before an exception is thrown.)
class WithoutMemory : public CProgressTest {
protected:
    static constexpr std::size_t kLargePiece = 4096;
    std::atomic<bool> isOver = false;
    CLibraryImport<"malloc", void*(std::size_t), ECalled::AsC> memory{
        [this](std::size_t size) { return isOver && size >= kLargePiece ? nullptr : memory.System(size); }};
};

TEST_F(WithoutMemory, ABrowseButtonEndsTheImportDialog)
{
    CLibraryCall call;
    const HWND dialog = WaitFor(FindImportDialog);
    isOver = true;
    Click(dialog, IDC_BROWSE_STRUCTURE);
    EXPECT_EQ(1, call.Result());
}

TEST_F(WithoutMemory, OkEndsTheImportDialogAsCancelDoes)
{
    CLibraryCall call;
    const HWND dialog = WaitFor(FindImportDialog);
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), std::string(kLargePiece, 'x'));
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    isOver = true;
    Click(dialog, IDOK);
    EXPECT_EQ(1, call.Result());
}

TEST_F(WithoutMemory, TheConversionFailsWithoutABox)
{
    AtStep(9, [this](HWND) { isOver = true; });
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(-1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
    EXPECT_FALSE(::IsWindow(watch.Window()));
}

TEST_F(WithoutMemory, TheCallFailsBeforeTheConversion)
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
    constexpr std::size_t kPlaceInDescription = sizeof(void*) == 8 ? 0xF8 : 0x94;
    PROCESS_BASIC_INFORMATION about{};
    ::NtQueryInformationProcess(::GetCurrentProcess(), ProcessBasicInformation, &about, sizeof(about), nullptr);
    const CEntry* table = nullptr;
    std::memcpy(&table, reinterpret_cast<const char*>(about.PebBaseAddress) + kPlaceInDescription, sizeof(table));
    const auto isTaken = [](const CEntry& entry) { return entry.type != 0; };
    return table == nullptr ? 0 : static_cast<std::size_t>(std::count_if(table, table + kEntries, isTaken));
}

BOOL CALLBACK CountIfOurs(HWND window, LPARAM count)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    *reinterpret_cast<std::size_t*>(count) += process == ::GetCurrentProcessId() ? 1U : 0U;
    return TRUE;
}

std::size_t Windows()
{
    std::size_t count = 0;
    ::EnumWindows(CountIfOurs, reinterpret_cast<LPARAM>(&count));
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

using Leaks = CWindowsTest;

// On one thread, as a host with one window thread converts; seen on that thread, whose windows end with it. Wine counts
// no user objects: there they stay 0, and the windows have to tell.
TEST_F(Leaks, TwoHundredConversionsLeaveNothingBehind)
{
    constexpr int kFirst = 20;
    constexpr int kAll = kFirst + 200;
    const std::string structure = WriteStructure();
    const std::string load = WriteLoad();
    CResources before{};
    CResources after{};
    CLibraryCall call([&](std::string& path) {
        int results = 0;
        for (int i = 0; i < kAll; ++i) {
            before = i == kFirst ? Resources() : before;
            results += ConvertFile2(path);
        }
        after = Resources();
        return results;
    });
    HWND previous = nullptr;
    for (int i = 0; i < kAll; ++i) {
        HWND dialog = nullptr;
        ASSERT_TRUE(WaitUntil([&] { return (dialog = FindImportDialog()) != nullptr && dialog != previous; }));
        ASSERT_TRUE(ImportFiles(structure, load));
        previous = dialog;
    }
    EXPECT_EQ(0, call.Result());

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
