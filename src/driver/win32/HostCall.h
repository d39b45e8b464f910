// The entry of a call from the host: what has to hold while the library's code runs, and is given back at its end.
#pragma once

#include "driver/FloatEnvironment.h"

#include <windows.h>

namespace satwecvt {

/// One call of the host. While it lives
/// - a second call, from another thread or through the message pump of this one, is turned away (`IsFirst`);
/// - the library stays loaded, even when the host frees it from a message handler. It then stays for the process's
///   life: code cannot unload itself and return;
/// - the floating-point environment is the default one;
/// - the windows look like the user's other windows: the library's manifest asks for the common controls' version 6.
class CHostCall {
public:
    explicit CHostCall(HINSTANCE resources) noexcept;
    ~CHostCall();
    CHostCall(const CHostCall&) = delete;
    CHostCall& operator=(const CHostCall&) = delete;

    /// Whether no other call is running.
    bool IsFirst() const noexcept { return isFirst; }

private:
    CFloatEnvironment environment;
    bool isFirst;
    HANDLE context = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie = 0;
};

}  // namespace satwecvt
