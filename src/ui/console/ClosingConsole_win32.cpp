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

/// Services and tasks in the background have windows that nobody sees.
bool HasVisibleDesktop() noexcept
{
    USEROBJECTFLAGS flags{};
    return ::GetUserObjectInformationW(::GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof(flags), nullptr) != 0 &&
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

}  // namespace

void WaitForReaderOfOwnConsole() noexcept
{
    DWORD programs[2]{};
    if (::GetConsoleProcessList(programs, 2) != 1 || !HasVisibleDesktop() || !IsConsole(stdin) || !IsConsole(stdout) ||
        !IsConsole(stderr)) {
        return;
    }
    std::fflush(stdout);
    std::fputs("\nPress Enter to close this window.", stderr);
    std::fflush(stderr);
    std::getchar();
}

bool IsStartedFromDesktop(int argc, const char* const* argv) noexcept
{
    if (argc < 2) {
        return true;
    }
    const std::string_view first = argv[1];
    return first.substr(1, 2) == ":\\" || first.substr(0, 2) == "\\\\";
}

}  // namespace satwecvt
