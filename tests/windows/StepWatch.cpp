#include "windows/StepWatch.h"

#include "ui/win32/resource.h"
#include "windows/LibraryWindows.h"

namespace satwecvt {

CStepWatch* CStepWatch::current = nullptr;

CStepWatch::CStepWatch()
    : creation([this](auto... arguments) { return Create(arguments...); }),
      keyQuestion([this](int key) { return AskForKey(key); })
{
    current = this;
}

CStepWatch::~CStepWatch()
{
    Unhook();
    current = nullptr;
}

void CStepWatch::Unhook()
{
    if (hook != nullptr) {
        ::UnhookWindowsHookEx(hook);
        hook = nullptr;
    }
}

HWND CStepWatch::Create(HINSTANCE module, LPCSTR dialog, HWND owner, DLGPROC procedure, LPARAM parameter)
{
    window = creation.System(module, dialog, owner, procedure, parameter);
    steps = -1;
    Unhook();
    hook = ::SetWindowsHookExA(WH_CALLWNDPROCRET, SeeMessage, nullptr, ::GetCurrentThreadId());
    if (onStatus) {
        onStatus(Text(window, IDC_STATUS), window);
    }
    return window;
}

SHORT CStepWatch::AskForKey(int key)
{
    if (++steps > 0 && onStep) {
        onStep(steps, window);
    }
    return onKey ? onKey(key) : keyQuestion.System(key);
}

LRESULT CALLBACK CStepWatch::SeeMessage(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_SETTEXT && current != nullptr && current->onStatus &&
        message.hwnd == ::GetDlgItem(current->window, IDC_STATUS)) {
        current->onStatus(Text(message.hwnd), current->window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace satwecvt
