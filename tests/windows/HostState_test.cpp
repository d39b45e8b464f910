// What the library finds in its host, and gives back as it was: on every way that a call can end.

#include "ui/win32/resource.h"
#include "windows/HostWindow.h"
#include "windows/LibraryWindows.h"
#include "windows/ProgressTest.h"

#include <xmmintrin.h>

#include <commctrl.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cfenv>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <set>
#include <vector>

namespace satwecvt {
namespace {

class HostState : public CProgressTest {};

TEST_F(HostState, TheHostsLocaleChangesNothing)
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

TEST_F(HostState, TheHostsFloatingPointStateChangesNothingAndIsGivenBack)
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

TEST_F(HostState, TheHostsActivationContextIsGivenBack)
{
    HANDLE before = nullptr;
    HANDLE atTheDialog = nullptr;
    HANDLE during = nullptr;
    HANDLE after = nullptr;
    HANDLE released = nullptr;
    const CLibraryImport<"ReleaseActCtx", void(HANDLE)> release([&](HANDLE context) {
        released = context;
        ::ReleaseActCtx(context);
    });
    CLibraryImport<"DialogBoxParamA", INT_PTR(HINSTANCE, LPCSTR, HWND, DLGPROC, LPARAM)> importDialog(
        [&](auto... arguments) {
            ::GetCurrentActCtx(&atTheDialog);
            return importDialog.System(arguments...);
        });
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
    EXPECT_EQ(during, atTheDialog);
    EXPECT_EQ(during, released);
    ::ReleaseActCtx(atTheDialog);
    ::ReleaseActCtx(during);
}

TEST_F(HostState, WithoutAnActivationContextTheHostsOwnStays)
{
    int touched = 0;
    const CLibraryImport<"CreateActCtxA", HANDLE(const ACTCTXA*)> create([](auto...) { return INVALID_HANDLE_VALUE; });
    const CLibraryImport<"ActivateActCtx", BOOL(HANDLE, ULONG_PTR*)> activate([&](auto...) { return ++touched; });
    const CLibraryImport<"DeactivateActCtx", BOOL(DWORD, ULONG_PTR)> deactivate([&](auto...) { return ++touched; });
    const CLibraryImport<"ReleaseActCtx", void(HANDLE)> release([&](auto...) { ++touched; });
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(0, touched);
}

// Wine has the classes of all controls from the start; Windows promises those that somebody asked for.
TEST_F(HostState, TheControlsOfBothDialogsAreAskedFor)
{
    DWORD asked = 0;
    CLibraryImport<"InitCommonControlsEx", BOOL(const INITCOMMONCONTROLSEX*)> controls(
        [&](const INITCOMMONCONTROLSEX* request) {
            asked = request->dwICC;
            return controls.System(request);
        });
    CLibraryCall call;
    Click(WaitFor(FindImportDialog), IDCANCEL);
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(DWORD{ICC_PROGRESS_CLASS | ICC_STANDARD_CLASSES}, asked);
}

/// Sees what the host's own code would see on the library's thread, wherever it can run there: when the import dialog
/// is about to come, at every step, and at every status text.
class HostStateMeanwhile : public CProgressTest {
protected:
    int Convert(const std::function<void()>& look)
    {
        CLibraryImport<"DialogBoxParamA", INT_PTR(HINSTANCE, LPCSTR, HWND, DLGPROC, LPARAM)> importDialog(
            [&](auto... arguments) {
                look();
                return importDialog.System(arguments...);
            });
        watch.onStep = [&](std::int64_t, HWND) { look(); };
        watch.onStatus = [&](const std::string&, HWND) { look(); };
        return ConvertSmallBuilding();
    }
};

/// What the whole process shares, or the thread, and code that is called meanwhile relies on.
struct CSettings {
    UINT errorMode;
    DWORD threadErrorMode;
    int threadPriority;
    std::string workingFolder;
    std::string locale;
    std::string smallNumber;  // as the process's run-time library writes it

    bool operator==(const CSettings&) const = default;
};

CSettings Settings()
{
    char folder[MAX_PATH]{};
    ::GetCurrentDirectoryA(sizeof(folder), folder);
    char number[16]{};
    using CPrint = int(char*, const char*, ...);
    void* const print = reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("msvcrt.dll"), "sprintf"));
    reinterpret_cast<CPrint*>(print)(number, "%g", 0.5e-10);
    return {::GetErrorMode(), ::GetThreadErrorMode(),          ::GetThreadPriority(::GetCurrentThread()),
            folder,           std::setlocale(LC_ALL, nullptr), number};
}

void PrintTo(const CSettings& settings, std::ostream* out)
{
    *out << "error mode " << settings.errorMode << ' ' << settings.threadErrorMode << ", priority "
         << settings.threadPriority << ", in " << settings.workingFolder << ", locale " << settings.locale
         << ", small number " << settings.smallNumber;
}

TEST_F(HostStateMeanwhile, ItsSettingsHold)
{
    std::setlocale(LC_ALL, "German_Germany.1252");
    const CSettings before = Settings();
    std::vector<CSettings> seen;
    const int result = Convert([&] { seen.push_back(Settings()); });
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(0, result);
    EXPECT_EQ("5e-011", before.smallNumber) << "changed by an earlier call";
    EXPECT_LT(static_cast<std::size_t>(kSteps), seen.size());
    EXPECT_EQ(std::vector<CSettings>(seen.size(), before), seen);
}

TEST_F(HostStateMeanwhile, NoWaitCursorIsShownBeforeTheConversion)
{
    std::vector<HCURSOR> cursors;
    EXPECT_EQ(0, Convert([&] { cursors.push_back(::GetCursor()); }));
    ASSERT_FALSE(cursors.empty());
    EXPECT_NE(::LoadCursor(nullptr, IDC_WAIT), cursors.front());
}

/// The threads of this process.
std::set<DWORD> Threads()
{
    std::set<DWORD> threads;
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL isThere = ::Thread32First(snapshot, &entry); isThere != 0; isThere = ::Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == ::GetCurrentProcessId()) {
            threads.insert(entry.th32ThreadID);
        }
    }
    ::CloseHandle(snapshot);
    return threads;
}

TEST_F(HostStateMeanwhile, NoThreadIsStarted)
{
    EXPECT_EQ(0, ConvertSmallBuilding());  // the system may start its own for the first windows of a program
    const std::set<DWORD> before = Threads();
    std::set<DWORD> started;
    DWORD own = 0;
    EXPECT_EQ(0, Convert([&] {
                  own = ::GetCurrentThreadId();
                  const std::set<DWORD> now = Threads();
                  std::set_difference(now.begin(), now.end(), before.begin(), before.end(),
                                      std::inserter(started, started.end()));
              }));
    EXPECT_EQ(std::set<DWORD>{own}, started);
}

// A host in a console has it for its own words.
TEST_F(HostState, NothingIsPrinted)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int result = ConvertSmallBuilding();
    std::fflush(nullptr);
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
    EXPECT_EQ(0, result);
}

TEST_F(HostState, NothingIsWrittenButTheModelAndTheLog)
{
    EXPECT_EQ(0, ConvertSmallBuilding());
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        files.insert(entry.path().filename().string());
    }
    EXPECT_EQ((std::set<std::string>{"load.sat", "satwecvt.msg", "tower.sat", "tower.vkm"}), files);
}

/// The ways in which a call can end.
enum class EEnding { Written, LeftTheDialog, NoPath, NoInput, Cancelled, Quit, NoOutput };

std::string EndingName(const testing::TestParamInfo<EEnding>& about)
{
    const char* const names[] = {"Written", "LeftTheDialog", "NoPath", "NoInput", "Cancelled", "Quit", "NoOutput"};
    return names[static_cast<int>(about.param)];
}

class HostStateAtTheEnd : public CProgressTest, public testing::WithParamInterface<EEnding> {
protected:
    /// Does what brings the call to this end, as the user.
    void BringAbout(EEnding ending)
    {
        switch (ending) {
        case EEnding::Written:
            ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
            return;
        case EEnding::LeftTheDialog:
            return Click(WaitFor(FindImportDialog), IDCANCEL);
        case EEnding::NoPath:
            return Click(WaitFor(FindImportDialog), IDOK);
        case EEnding::NoInput:
            ASSERT_TRUE(ImportFiles(InFolder("no such file.sat"), WriteLoad()));
            return CloseBox(WaitFor(FindMessageBox));
        case EEnding::Cancelled:
            AtStep(9, [](HWND window) { Click(window, IDC_CANCEL_READING); });
            ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
            return;
        case EEnding::Quit:
            AtStep(9, [](HWND) { ::PostQuitMessage(0); });
            ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
            return;
        case EEnding::NoOutput:
            std::filesystem::create_directory(InFolder("tower.vkm"));  // stands where the model has to go
            ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
            return CloseBox(WaitFor(FindMessageBox));
        }
    }

    static int Result(EEnding ending)
    {
        const bool isCancelled =
            ending == EEnding::LeftTheDialog || ending == EEnding::Cancelled || ending == EEnding::Quit;
        const bool isFailed = ending == EEnding::NoPath || ending == EEnding::NoInput;
        return isCancelled ? 1 : isFailed ? -1 : 0;
    }
};

/// What a thread of the host can tell of itself.
struct CThreadState {
    HCURSOR cursor;
    UINT errorMode;
    DWORD threadErrorMode;
    std::string workingFolder;
    std::string locale;
    int rounding;
    HWND activeWindow;
    HWND foregroundWindow;
    HWND focus;
    bool isEnabled;

    bool operator==(const CThreadState&) const = default;
};

CThreadState StateOf(const CHostWindow& host)
{
    char folder[MAX_PATH]{};
    ::GetCurrentDirectoryA(sizeof(folder), folder);
    return {::GetCursor(),
            ::GetErrorMode(),
            ::GetThreadErrorMode(),
            folder,
            std::setlocale(LC_ALL, nullptr),
            std::fegetround(),
            ::GetActiveWindow(),
            ::GetForegroundWindow(),
            ::GetFocus(),
            ::IsWindowEnabled(host.Handle()) != 0};
}

void PrintTo(const CThreadState& state, std::ostream* out)
{
    *out << "cursor " << state.cursor << ", error mode " << state.errorMode << ' ' << state.threadErrorMode << ", in "
         << state.workingFolder << ", locale " << state.locale << ", rounding " << state.rounding << ", active "
         << state.activeWindow << ", in front " << state.foregroundWindow << ", focus " << state.focus << ", enabled "
         << state.isEnabled;
}

TEST_P(HostStateAtTheEnd, IsAsBefore)
{
    CThreadState before{};
    CThreadState after{};
    CLibraryCall call([&](std::string& path) {
        const CHostWindow host;
        ::SetCursor(::LoadCursor(nullptr, IDC_UPARROW));  // no window's own
        ::SetErrorMode(SEM_NOOPENFILEERRORBOX);
        ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
        std::fesetround(FE_DOWNWARD);
        std::setlocale(LC_ALL, "German_Germany.1252");
        before = StateOf(host);
        const int result = ConvertFile2(path);
        after = StateOf(host);
        std::setlocale(LC_ALL, "C");
        ::SetErrorMode(0);
        return result;
    });
    BringAbout(GetParam());
    EXPECT_EQ(Result(GetParam()), call.Result());
    EXPECT_EQ(before, after);
    EXPECT_EQ(FE_DOWNWARD, after.rounding);
    EXPECT_NE(nullptr, after.focus);
}

INSTANTIATE_TEST_SUITE_P(Every, HostStateAtTheEnd,
                         testing::Values(EEnding::Written, EEnding::LeftTheDialog, EEnding::NoPath, EEnding::NoInput,
                                         EEnding::Cancelled, EEnding::Quit, EEnding::NoOutput),
                         EndingName);

TEST_F(HostState, ItsWindowStaysEnabledAndOwnsNoWindowOfTheLibrary)
{
    const CHostWindow* host = nullptr;
    const auto expectFree = [&](HWND window) {
        EXPECT_NE(nullptr, window);
        EXPECT_EQ(nullptr, ::GetWindow(window, GW_OWNER));
        EXPECT_TRUE(::IsWindowEnabled(host->Handle()));
        EXPECT_NE(0, ::SendMessageTimeoutA(host->Handle(), WM_NULL, 0, 0, 0, 10'000, nullptr)) << "it does not answer";
    };
    AtStep(9, expectFree);
    CLibraryCall call([&](std::string& path) {
        const CHostWindow window;
        host = &window;
        return ConvertFile2(path);
    });
    const HWND dialog = WaitFor(FindImportDialog);
    expectFree(dialog);
    Click(dialog, IDC_BROWSE_STRUCTURE);
    const HWND files = WaitFor(FindFileDialog);
    expectFree(files);
    EXPECT_TRUE(::IsWindowEnabled(dialog));
    Click(files, IDCANCEL);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindow(files) == 0; }));
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
}

// The system's pointer says that the Cancel button can be pushed.
TEST_F(HostState, OverTheProgressWindowThePointerIsAnArrow)
{
    HCURSOR overTheButton = nullptr;
    AtStep(10, [&](HWND window) {
        const HWND button = ::GetDlgItem(window, IDC_CANCEL_READING);
        ::SendMessageA(button, WM_SETCURSOR, reinterpret_cast<WPARAM>(button), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        overTheButton = ::GetCursor();
    });
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), overTheButton);
}

TEST_F(HostState, TheWaitCursorIsShownWhileTheFilesAreConverted)
{
    HCURSOR whileReading = nullptr;
    HCURSOR whileWriting = nullptr;
    AtStep(10, [&](HWND) { whileReading = ::GetCursor(); });
    watch.onStatus = [&](const std::string&, HWND) { whileWriting = ::GetCursor(); };
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(::LoadCursor(nullptr, IDC_WAIT), whileReading);
    EXPECT_EQ(::LoadCursor(nullptr, IDC_WAIT), whileWriting);
}

}  // namespace
}  // namespace satwecvt
