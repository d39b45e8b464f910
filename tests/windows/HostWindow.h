// A host's main window: a window of wide characters, with all that came to it.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <thread>
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

/// A host's window on a thread of its own, which hands out its messages for as long as the object lives.
class CHostWindowThread {
public:
    CHostWindowThread();
    ~CHostWindowThread();
    CHostWindowThread(const CHostWindowThread&) = delete;
    CHostWindowThread& operator=(const CHostWindowThread&) = delete;

    /// Brings the window to the front, with the focus; returns whether it got there.
    bool ComesToTheFront() const;

    /// Whether the window answers.
    bool IsAlive() const;

private:
    std::atomic<HWND> handle = nullptr;
    std::atomic<bool> isOver = false;
    std::thread thread;
};

/// Hands out messages as a host's own loop does, until the condition comes true; returns whether it did in time.
bool PumpUntil(const std::function<bool()>& condition);

}  // namespace satwecvt
