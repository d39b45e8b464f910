// Stops the library at every line and at every status text, on its own thread.
//
// The library asks the system for the Escape key once for each line, after the messages are pumped and before the new
// line is shown: the watch stands in between, so a test can act at an exact line. Status texts are seen by a hook on
// the library's thread.
#pragma once

#include "windows/LibraryImport.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>

namespace satwecvt {

class CStepWatch {
public:
    /// Called with the number of the step, counted from 1, and the progress window; it shows what the step before left.
    std::function<void(std::int64_t step, HWND window)> onStep;

    /// Called when a status text has been set; the first one, which stands at creation, is told at creation.
    std::function<void(const std::string& status, HWND window)> onStatus;

    /// What the library hears when it asks for a key, in place of the system's answer.
    std::function<SHORT(int key)> onKey;

    /// One watch at a time. No conversion may run while it comes and goes.
    CStepWatch();
    ~CStepWatch();
    CStepWatch(const CStepWatch&) = delete;
    CStepWatch& operator=(const CStepWatch&) = delete;

    /// How often a line was stepped to, in the latest conversion.
    std::int64_t Steps() const { return steps; }

    /// The latest progress window; null before the first. It may be gone.
    HWND Window() const { return window; }

private:
    HWND Create(HINSTANCE module, LPCSTR dialog, HWND owner, DLGPROC procedure, LPARAM parameter);
    SHORT AskForKey(int key);
    static LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam);
    void Unhook();

    static CStepWatch* current;
    HWND window = nullptr;
    HHOOK hook = nullptr;
    std::int64_t steps = 0;  // the question at the window's creation drops an old Escape and is no step
    CLibraryImport<"CreateDialogParamA", HWND(HINSTANCE, LPCSTR, HWND, DLGPROC, LPARAM)> creation;
    CLibraryImport<"GetAsyncKeyState", SHORT(int)> keyQuestion;
};

}  // namespace satwecvt
