#include "driver/win32/QuarnellApp.h"

namespace satwecvt {

constinit CQuarnellApp theApp;

}  // namespace satwecvt

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        satwecvt::theApp.InitInstance(instance);
    }
    return TRUE;
}
