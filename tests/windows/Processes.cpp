#include "windows/Processes.h"

#include "windows/LibraryWindows.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace satwecvt {

namespace {

bool Start(const char* program, std::string command, DWORD creation, WORD show, PROCESS_INFORMATION& process)
{
    STARTUPINFOA start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = show;
    return ::CreateProcessA(program, command.data(), nullptr, nullptr, FALSE, creation, nullptr, nullptr, &start,
                            &process) != 0;
}

bool IsWine()
{
    return ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace

CProcess::CProcess(const std::string& program, const std::string& arguments, DWORD creation, WORD show)
{
    EXPECT_TRUE(Start(nullptr, '"' + BesideTheTest(program) + "\" " + arguments, creation, show, process)) << program;
}

CProcess::~CProcess()
{
    ::TerminateProcess(process.hProcess, 1);
    HasEnded(60'000);  // only then are its files closed
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

bool CProcess::HasEnded(DWORD milliseconds) const
{
    return ::WaitForSingleObject(process.hProcess, milliseconds) == WAIT_OBJECT_0;
}

DWORD CProcess::ExitCode() const
{
    DWORD exitCode = STILL_ACTIVE;
    WaitUntil([this] { return HasEnded(); });
    ::GetExitCodeProcess(process.hProcess, &exitCode);
    return exitCode;
}

std::string BesideTheTest(const std::string& file)
{
    char program[MAX_PATH]{};
    ::GetModuleFileNameA(nullptr, program, sizeof(program));
    return (std::filesystem::path(program).parent_path() / file).string();
}

void PressEscapeOnTheKeyboard(const std::string& title)
{
    if (IsWine()) {  // whose keyboard is that of the X server, where no window manager gives it to the window in front
        const std::filesystem::path pressed = "pressed";  // Wine gives no handle to wait for
        PROCESS_INFORMATION noHandles{};
        Start("Z:\\bin\\sh", "sh -c \"xdotool search --name '^" + title + "$' windowfocus key Escape; : >pressed\"", 0,
              SW_SHOWNORMAL, noHandles);
        WaitUntil([&] { return std::filesystem::exists(pressed); });
        std::filesystem::remove(pressed);
    } else {
        PressKey(VK_ESCAPE);
    }
}

}  // namespace satwecvt
