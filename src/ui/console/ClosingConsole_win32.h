#pragma once

namespace satwecvt {

/// For a program that was started by a double click, or by files that were dropped on it: Windows gives it a console of
/// its own, which goes when the program ends. Waits until its reader presses Enter. Returns at once where nobody looks:
/// the console has other programs, an input or output is redirected, or its window is hidden.
void WaitForReaderOfOwnConsole() noexcept;

/// Whether Windows, and not a command line, may have started the program: without arguments, or with a file in front,
/// which Windows names from its drive or its server on.
bool IsStartedFromDesktop(int argc, const char* const* argv) noexcept;

}  // namespace satwecvt
