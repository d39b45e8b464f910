#include "windows/StepWatch.h"

#include "ui/win32/resource.h"
#include "windows/HostWindows.h"
#include "windows/LibraryCall.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace satwecvt {

namespace {

template <typename T>
T* At(HMODULE module, std::size_t offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

/// The place in the library's table of imports that holds the address of a function of the system.
ULONG_PTR* FindImport(HMODULE module, const char* name)
{
    const auto* const dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* const header = At<IMAGE_NT_HEADERS>(module, static_cast<std::size_t>(dos->e_lfanew));
    const auto& directory = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (const auto* import = At<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress); import->Name != 0;
         ++import) {
        const auto* named = At<IMAGE_THUNK_DATA>(module, import->OriginalFirstThunk);
        auto* address = At<IMAGE_THUNK_DATA>(module, import->FirstThunk);
        for (; named->u1.AddressOfData != 0; ++named, ++address) {
            const auto* const entry =
                At<IMAGE_IMPORT_BY_NAME>(module, static_cast<std::size_t>(named->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(entry->Name), name) == 0) {
                return &address->u1.Function;
            }
        }
    }
    std::fprintf(stderr, "satwecvt.dll does not import %s\n", name);
    std::exit(70);
}

void RedirectKeyQuestion(SHORT(WINAPI* function)(int))
{
    ULONG_PTR* const place = FindImport(Library(), "GetAsyncKeyState");
    DWORD protection = 0;
    ::VirtualProtect(place, sizeof(*place), PAGE_READWRITE, &protection);
    *place = reinterpret_cast<ULONG_PTR>(function);
    ::VirtualProtect(place, sizeof(*place), protection, &protection);
}

}  // namespace

CStepWatch* CStepWatch::current = nullptr;

CStepWatch::CStepWatch()
{
    current = this;
    RedirectKeyQuestion(AskForKey);
}

CStepWatch::~CStepWatch()
{
    RedirectKeyQuestion(::GetAsyncKeyState);
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

SHORT WINAPI CStepWatch::AskForKey(int key)
{
    CStepWatch& self = *current;
    if (::IsWindow(self.window) == 0) {
        self.OnCreated();
    } else if (++self.steps; self.onStep) {
        self.onStep(self.steps, self.window);
    }
    return ::GetAsyncKeyState(key);
}

void CStepWatch::OnCreated()
{
    window = FindProgressWindow();
    steps = 0;
    Unhook();
    hook = ::SetWindowsHookExA(WH_CALLWNDPROCRET, SeeMessage, nullptr, ::GetCurrentThreadId());
    if (onStatus) {
        onStatus(Text(window, IDC_STATUS), window);
    }
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
