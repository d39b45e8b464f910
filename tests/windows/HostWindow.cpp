#include "windows/HostWindow.h"

#include "windows/LibraryWindows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace satwecvt {

namespace {

constexpr const wchar_t* kClass = L"satwecvt test host";

void RegisterOnce(WNDPROC procedure)
{
    WNDCLASSW about{};
    about.lpfnWndProc = procedure;
    about.hInstance = ::GetModuleHandleW(nullptr);
    about.hCursor = ::LoadCursor(nullptr, IDC_CROSS);
    about.hbrBackground = ::GetSysColorBrush(COLOR_WINDOW);
    about.lpszClassName = kClass;
    ::RegisterClassW(&about);  // fails from the second time on
}

}  // namespace

CHostWindow::CHostWindow(CHandler messageHandler) : handler(std::move(messageHandler))
{
    RegisterOnce(Procedure);
    window = ::CreateWindowW(kClass, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 150, nullptr, nullptr,
                             ::GetModuleHandleW(nullptr), this);
    ::SetForegroundWindow(window);
    EXPECT_TRUE(PumpUntil([this] { return IsInFront(); }));
}

CHostWindow::~CHostWindow()
{
    handler = nullptr;
    ::DestroyWindow(window);
}

int CHostWindow::Count(UINT message) const
{
    const auto fits = [=](const MSG& one) { return one.message == message; };
    return static_cast<int>(std::count_if(received.begin(), received.end(), fits));
}

int CHostWindow::Count(UINT message, WPARAM wParam) const
{
    const auto fits = [=](const MSG& one) { return one.message == message && one.wParam == wParam; };
    return static_cast<int>(std::count_if(received.begin(), received.end(), fits));
}

bool CHostWindow::IsInFront() const
{
    return ::GetForegroundWindow() == window && ::GetActiveWindow() == window && ::GetFocus() == window;
}

LRESULT CALLBACK CHostWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        const auto& creation = *reinterpret_cast<const CREATESTRUCTW*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation.lpCreateParams));
    }
    if (auto* const self = reinterpret_cast<CHostWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA))) {
        MSG about{};
        about.hwnd = window;
        about.message = message;
        about.wParam = wParam;
        about.lParam = lParam;
        self->received.push_back(about);
        if (self->handler) {
            self->handler(about);
        }
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

CHostWindowThread::CHostWindowThread()
    : thread([this] {
          const CHostWindow window;
          handle = window.Handle();
          PumpUntil([this] { return isOver.load(); });
      })
{
    WaitUntil([this] { return handle.load() != nullptr; });
}

CHostWindowThread::~CHostWindowThread()
{
    isOver = true;
    thread.join();
}

bool CHostWindowThread::ComesToTheFront() const
{
    ::SetForegroundWindow(handle);
    const DWORD owner = ::GetWindowThreadProcessId(handle, nullptr);
    return WaitUntil([&] { return ::GetForegroundWindow() == handle && FocusOf(owner) == handle; });
}

bool CHostWindowThread::IsAlive() const
{
    return ::SendMessageTimeoutA(handle, WM_NULL, 0, 0, SMTO_NORMAL, 10'000, nullptr) != 0;
}

bool PumpUntil(const std::function<bool()>& condition)
{
    return WaitUntil([&] {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        return condition();
    });
}

}  // namespace satwecvt
