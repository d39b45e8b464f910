// Stops the library at every line and at every status text, on its own thread.
//
// The library asks the system for the Escape key once for each line, after the messages are pumped and before the new
// line is shown. That question goes through the table of its imports, where the watch puts itself in between: so a test
// can act at an exact line. The answer stays the system's. Status texts are seen by a hook on the library's thread.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace satwecvt {

class CStepWatch {
public:
    /// Called with the number of the step, counted from 1, and the progress window; it shows what the step before left.
    std::function<void(std::int64_t step, HWND window)> onStep;

    /// Called when a status text has been set; the first one, which stands at creation, is told at creation.
    std::function<void(const std::string& status, HWND window)> onStatus;

    /// One watch at a time. No conversion may run while it comes and goes.
    CStepWatch();
    ~CStepWatch();
    CStepWatch(const CStepWatch&) = delete;
    CStepWatch& operator=(const CStepWatch&) = delete;

    std::int64_t Steps() const { return steps; }
    HWND Window() const { return window; }

private:
    static SHORT WINAPI AskForKey(int key);
    static LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam);
    void OnCreated();
    void Unhook();

    static CStepWatch* current;
    HWND window = nullptr;
    HHOOK hook = nullptr;
    std::int64_t steps = 0;  // of the latest window; the question at its creation drops an old Escape and is no step
};

}  // namespace satwecvt
