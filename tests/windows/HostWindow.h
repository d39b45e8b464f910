// A host's main window, on the thread that calls the library: a window of wide characters, with all that came to it.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace satwecvt {

class CHostWindow {
public:
    /// Sees each message before the system's handling of it, on the window's thread.
    using CHandler = std::function<void(const MSG& message)>;

    /// Shows the window in the upper left of the screen and brings it to the front.
    explicit CHostWindow(CHandler messageHandler = {});
    ~CHostWindow();
    CHostWindow(const CHostWindow&) = delete;
    CHostWindow& operator=(const CHostWindow&) = delete;

    HWND Handle() const { return window; }

    /// How often the window got a message; with any first parameter, or with this one.
    int Count(UINT message) const;
    int Count(UINT message, WPARAM wParam) const;

    /// Whether the window is in front, active and has the focus, as it was once created. To be asked on its thread.
    bool IsInFront() const;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    CHandler handler;
    std::vector<MSG> received;
    HWND window = nullptr;
};

/// Hands out messages as a host's own loop does, until the condition comes true; returns whether it did in time.
bool PumpUntil(const std::function<bool()>& condition);

}  // namespace satwecvt
