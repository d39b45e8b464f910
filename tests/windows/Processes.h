// Programs that a test starts.
#pragma once

#include <windows.h>

#include <string>

namespace satwecvt {

/// A program of the folder of the test program, started with these arguments. It is ended when the object goes.
class CProcess {
public:
    /// `creation` is what CreateProcess takes, `show` how the program's first window appears.
    explicit CProcess(const std::string& program, const std::string& arguments = "", DWORD creation = 0,
                      WORD show = SW_SHOWNORMAL);
    ~CProcess();
    CProcess(const CProcess&) = delete;
    CProcess& operator=(const CProcess&) = delete;

    DWORD Id() const { return process.dwProcessId; }

    /// Whether the program has ended, or does within this time.
    bool HasEnded(DWORD milliseconds = 0) const;

    /// Waits for the program's end; returns its exit code, or `STILL_ACTIVE` when the end does not come.
    DWORD ExitCode() const;

private:
    PROCESS_INFORMATION process{};
};

/// The full path of a file in the folder of the test program.
std::string BesideTheTest(const std::string& file);

/// Presses Escape on the keyboard itself while the window of this title, of any program, has it. The key is on its way
/// there when the function returns.
void PressEscapeOnTheKeyboard(const std::string& title);

}  // namespace satwecvt
