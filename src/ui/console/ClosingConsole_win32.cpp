#include "ui/console/ClosingConsole_win32.h"

#include <windows.h>

#include <io.h>

#include <cstdio>
#include <string_view>

namespace satwecvt {

namespace {

bool IsConsole(std::FILE* stream) noexcept
{
    return ::_isatty(::_fileno(stream)) != 0;
}

/// Who starts a program may hide its console, or give it none that has a window. Services and tasks in the background
/// have windows that nobody sees.
bool IsSeen() noexcept
{
    STARTUPINFOW start{};
    ::GetStartupInfoW(&start);
    if ((start.dwFlags & STARTF_USESHOWWINDOW) != 0 && start.wShowWindow == SW_HIDE) {
        return false;
    }
    USEROBJECTFLAGS flags{};
    return ::GetConsoleWindow() != nullptr &&
           ::GetUserObjectInformationW(::GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof(flags), nullptr) != 0 &&
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

}  // namespace

void WaitForReaderOfOwnConsole() noexcept
{
    DWORD programs[2]{};
    const bool isOwn = ::GetConsoleProcessList(programs, 2) == 1;
    if (!isOwn || !IsSeen() || !IsConsole(stdin) || !IsConsole(stdout) || !IsConsole(stderr)) {
        return;
    }
    std::fflush(stdout);
    std::fputs("\nPress Enter to close this window.", stderr);
    std::fflush(stderr);
    ::FlushConsoleInputBuffer(::GetStdHandle(STD_INPUT_HANDLE));  // what was typed before nobody meant as an answer
    std::getchar();
}

bool IsStartedFromDesktop(int argc, const char* const* argv) noexcept
{
    if (argc < 2) {
        return true;
    }
    const std::string_view first = argv[1];
    return first.starts_with("\\\\") || (first.size() > 2 && first[1] == ':' && first[2] == '\\');
}

}  // namespace satwecvt
