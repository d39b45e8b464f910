// The program in a console: what its user reads there. The console is one of this process's own, which the program
// shares, or one of the program's own.
#include "windows/LibraryWindows.h"
#include "windows/Processes.h"
#include "windows/WindowsTest.h"

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>

namespace satwecvt {
namespace {

constexpr UINT kOlderCodePage = 437;

std::wstring Quoted(const std::filesystem::path& path)
{
    return L'"' + path.wstring() + L'"';
}

/// The program, which stands beside this one, in quotes.
std::wstring Program()
{
    wchar_t self[MAX_PATH]{};
    ::GetModuleFileNameW(nullptr, self, MAX_PATH);
    return Quoted(std::filesystem::path(self).parent_path() / "satwecvt.exe");
}

/// All that stands on a console's screen, from its first row on.
std::wstring TextOf(HANDLE screen)
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    ::GetConsoleScreenBufferInfo(screen, &info);
    const int cells = info.dwSize.X * (info.dwCursorPosition.Y + 1);
    std::wstring text(static_cast<std::size_t>(cells), L'\0');
    DWORD read = 0;
    ::ReadConsoleOutputCharacterW(screen, text.data(), static_cast<DWORD>(text.size()), COORD{}, &read);
    return text.substr(0, read);
}

/// A part of the console that this process has.
HANDLE Open(const char* part, SECURITY_ATTRIBUTES* attributes = nullptr)
{
    return ::CreateFileA(part, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, attributes,
                         OPEN_EXISTING, 0, nullptr);
}

class ConsoleTest : public CWindowsTest {
protected:
    void SetUp() override
    {
        ::FreeConsole();  // the one that this process was started in
        ASSERT_NE(0, ::AllocConsole());
        ASSERT_NE(0, ::SetConsoleOutputCP(kOlderCodePage));
        SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        screen = Open("CONOUT$", &inheritable);
        keys = Open("CONIN$", &inheritable);
        ASSERT_NE(INVALID_HANDLE_VALUE, screen);
        ASSERT_NE(INVALID_HANDLE_VALUE, keys);
    }

    void TearDown() override
    {
        ::CloseHandle(keys);
        ::CloseHandle(screen);
        ::FreeConsole();
        WaitUntil([] { return OpenWindows().empty(); });
        CWindowsTest::TearDown();
    }

    /// Runs the program to its end; returns its exit code.
    DWORD Run(const std::wstring& arguments) const
    {
        std::wstring command = Program() + L' ' + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof(start);
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = keys;
        start.hStdOutput = screen;
        start.hStdError = screen;
        PROCESS_INFORMATION process{};
        DWORD exitCode = STILL_ACTIVE;
        if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process) !=
            0) {
            ::WaitForSingleObject(process.hProcess, 60000);
            ::GetExitCodeProcess(process.hProcess, &exitCode);
            ::CloseHandle(process.hThread);
            ::CloseHandle(process.hProcess);
        }
        return exitCode;
    }

    HANDLE screen = INVALID_HANDLE_VALUE;
    HANDLE keys = INVALID_HANDLE_VALUE;
};

TEST_F(ConsoleTest, AFileNameOfAnotherLanguageIsReadable)
{
    EXPECT_EQ(1u, Run(L"convert \u00fc\u0448\u7ed3.sat load.sat"));
    EXPECT_NE(std::wstring::npos, TextOf(screen).find(L"\u00fc\u0448\u7ed3.sat")) << "not on the screen";
}

TEST_F(ConsoleTest, NobodyIsAskedForAKeyInAConsoleWithOtherPrograms)
{
    EXPECT_EQ(0u, Run(Quoted(WriteStructure()) + L' ' + Quoted(WriteLoad())));
    EXPECT_EQ(std::wstring::npos, TextOf(screen).find(L"Press Enter"));
}

TEST_F(ConsoleTest, AnEmptyPathIsNoneThatWindowsNames)
{
    EXPECT_EQ(2u, Run(L"\"\" \"\""));
    EXPECT_EQ(kOlderCodePage, ::GetConsoleOutputCP());
}

TEST_F(ConsoleTest, TheConsolesCodePageIsGivenBack)
{
    EXPECT_EQ(1u, Run(L"convert missing.sat missing.sat"));
    EXPECT_NE(std::wstring::npos, TextOf(screen).find(L"missing.sat"));
    EXPECT_EQ(kOlderCodePage, ::GetConsoleOutputCP());
}

/// The program as Windows starts it from the desktop: in a console that is the program's alone.
class OwnConsole : public CWindowsTest {
protected:
    void TearDown() override
    {
        process.reset();
        CWindowsTest::TearDown();
    }

    void Start(const std::string& arguments, WORD show = SW_SHOWNORMAL)
    {
        process.reset();
        process.emplace("satwecvt.exe", arguments, CREATE_NEW_CONSOLE, show);
    }

    /// What stands in the program's console when it waits for Enter, which is then pressed.
    std::wstring ReadUntilItWaits(const std::string& arguments)
    {
        // Who reads a console shares it, and the program waits in none that is shared: a reader who comes before the
        // program waits has come too early, and tries again.
        constexpr DWORD kLongest = 16'000;
        for (DWORD milliseconds = 250; milliseconds <= kLongest; milliseconds *= 2) {
            Start(arguments);
            if (process->HasEnded(milliseconds)) {
                ADD_FAILURE() << "nobody can read what it told";
                return {};
            }
            const std::wstring text = Read();
            if (text.find(L"Press Enter to close this window.") != std::wstring::npos) {
                return text;
            }
        }
        ADD_FAILURE() << "does not come to an end";
        return {};
    }

    std::string Structure() const { return '"' + WriteStructure() + '"'; }
    std::string Load() const { return '"' + WriteLoad() + '"'; }

    std::optional<CProcess> process;

private:
    static void PressEnter(HANDLE keys)
    {
        INPUT_RECORD enter{};
        enter.EventType = KEY_EVENT;
        enter.Event.KeyEvent.wRepeatCount = 1;
        enter.Event.KeyEvent.wVirtualKeyCode = VK_RETURN;
        enter.Event.KeyEvent.wVirtualScanCode = 0x1C;
        enter.Event.KeyEvent.uChar.UnicodeChar = L'\r';
        for (const BOOL isDown : {TRUE, FALSE}) {
            enter.Event.KeyEvent.bKeyDown = isDown;
            DWORD written = 0;
            ::WriteConsoleInputW(keys, &enter, 1, &written);
        }
    }

    /// What stands in the program's console; presses Enter there, for which the program may wait.
    std::wstring Read() const
    {
        ::FreeConsole();
        ::AttachConsole(process->Id());
        const HANDLE screen = Open("CONOUT$");
        const HANDLE keys = Open("CONIN$");
        const std::wstring text = TextOf(screen);
        PressEnter(keys);
        ::CloseHandle(keys);
        ::CloseHandle(screen);
        ::FreeConsole();
        return text;
    }
};

TEST_F(OwnConsole, WaitsForItsReaderWhenFilesWereDropped)
{
    EXPECT_NE(std::wstring::npos, ReadUntilItWaits(Structure() + ' ' + Load()).find(L"Model"));
    EXPECT_EQ(0u, process->ExitCode());
}

TEST_F(OwnConsole, WaitsForItsReaderWhenTheFilesWereSwapped)
{
    EXPECT_NE(std::wstring::npos, ReadUntilItWaits(Load() + ' ' + Structure()).find(L"swapped"));
    EXPECT_EQ(1u, process->ExitCode());
}

TEST_F(OwnConsole, WaitsForItsReaderAfterADoubleClick)
{
    EXPECT_NE(std::wstring::npos, ReadUntilItWaits("").find(L"--help"));
    EXPECT_EQ(2u, process->ExitCode());
}

TEST_F(OwnConsole, NobodyIsAskedForAKeyInAHiddenOne)
{
    Start(Structure() + ' ' + Load(), SW_HIDE);
    EXPECT_EQ(0u, process->ExitCode());
}

TEST_F(OwnConsole, ACommandEndsByItself)
{
    Start("convert " + Structure() + ' ' + Load());
    EXPECT_EQ(0u, process->ExitCode());
}

}  // namespace
}  // namespace satwecvt
