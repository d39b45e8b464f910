// The program in a console: what its user reads there. The console is one of this process's own; the program shares it.
#include "windows/LibraryWindows.h"
#include "windows/WindowsTest.h"

#include <windows.h>

#include <filesystem>
#include <string>

namespace satwecvt {
namespace {

constexpr UINT kOlderCodePage = 437;

class ConsoleTest : public CWindowsTest {
protected:
    void SetUp() override
    {
        ::FreeConsole();  // the one that this process was started in
        ASSERT_NE(0, ::AllocConsole());
        ASSERT_NE(0, ::SetConsoleOutputCP(kOlderCodePage));
        SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        screen = ::CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                               &inheritable, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, screen);
    }

    void TearDown() override
    {
        ::CloseHandle(screen);
        ::FreeConsole();
        WaitUntil([] { return OpenWindows().empty(); });
        CWindowsTest::TearDown();
    }

    /// Runs the program, which stands beside this one, to its end; returns its exit code.
    DWORD Run(const std::wstring& arguments) const
    {
        wchar_t self[MAX_PATH]{};
        ::GetModuleFileNameW(nullptr, self, MAX_PATH);
        const std::filesystem::path program = std::filesystem::path(self).parent_path() / "satwecvt.exe";
        std::wstring command = L'"' + program.wstring() + L"\" " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof(start);
        start.dwFlags = STARTF_USESTDHANDLES;
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

    /// All that stands on the console's screen, from its first row on.
    std::wstring ScreenText() const
    {
        CONSOLE_SCREEN_BUFFER_INFO info{};
        ::GetConsoleScreenBufferInfo(screen, &info);
        const int cells = info.dwSize.X * (info.dwCursorPosition.Y + 1);
        std::wstring text(static_cast<std::size_t>(cells), L'\0');
        DWORD read = 0;
        ::ReadConsoleOutputCharacterW(screen, text.data(), static_cast<DWORD>(text.size()), COORD{}, &read);
        return text.substr(0, read);
    }

    HANDLE screen = INVALID_HANDLE_VALUE;
};

TEST_F(ConsoleTest, AFileNameOfAnotherLanguageIsReadable)
{
    EXPECT_EQ(1u, Run(L"convert \u00fc\u0448\u7ed3.sat load.sat"));
    EXPECT_NE(std::wstring::npos, ScreenText().find(L"\u00fc\u0448\u7ed3.sat")) << "not on the screen";
}

TEST_F(ConsoleTest, TheConsolesCodePageIsGivenBack)
{
    EXPECT_EQ(1u, Run(L"convert missing.sat missing.sat"));
    EXPECT_NE(std::wstring::npos, ScreenText().find(L"missing.sat"));
    EXPECT_EQ(kOlderCodePage, ::GetConsoleOutputCP());
}

}  // namespace
}  // namespace satwecvt
