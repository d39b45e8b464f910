#pragma once

#include <windows.h>

namespace satwecvt {

/// The library's application object. It does one thing: when the library is loaded, it records the library's own
/// resource handle, through which both dialogs find their templates.
class CQuarnellApp {
public:
    /// Called under the loader lock: it stores a handle and does nothing else.
    void InitInstance(HINSTANCE instance) noexcept { resources = instance; }

    HINSTANCE Resources() const noexcept { return resources; }

private:
    HINSTANCE resources = nullptr;
};

/// The one application object of the library.
extern CQuarnellApp theApp;

}  // namespace satwecvt
