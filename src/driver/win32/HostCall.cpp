#include "driver/win32/HostCall.h"

#include <commctrl.h>

#include <atomic>

namespace satwecvt {

namespace {

constinit std::atomic<bool> isRunning = false;

void KeepLoaded(HINSTANCE library) noexcept
{
    HMODULE pinned = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                         reinterpret_cast<LPCSTR>(library), &pinned);
}

HANDLE CreateManifestContext(HINSTANCE library) noexcept
{
    ACTCTXA request{};
    request.cbSize = sizeof(request);
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = library;
    request.lpResourceName = MAKEINTRESOURCEA(2);  // where a library's manifest stands
    return ::CreateActCtxA(&request);
}

}  // namespace

CHostCall::CHostCall(HINSTANCE resources) noexcept : isFirst(!isRunning.exchange(true))
{
    if (!isFirst) {
        return;
    }
    KeepLoaded(resources);
    context = CreateManifestContext(resources);
    if (context != INVALID_HANDLE_VALUE) {
        ::ActivateActCtx(context, &cookie);
    }
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_PROGRESS_CLASS | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
}

CHostCall::~CHostCall()
{
    if (!isFirst) {
        return;
    }
    if (context != INVALID_HANDLE_VALUE) {
        ::DeactivateActCtx(0, cookie);
        ::ReleaseActCtx(context);
    }
    isRunning = false;
}

}  // namespace satwecvt
