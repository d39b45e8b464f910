// The smallest host: loads satwecvt.dll, lets the user convert a building, and prints how it went.
//
//   host [path of satwecvt.dll]

#define SATWECVT_USE_CONVERTFILE2
#include "satwecvt/satwecvt.h"

#include <windows.h>

#include <iostream>
#include <string>

namespace {

/// GetProcAddress returns a pointer to any function; by way of void* the compiler lets us say which one it is.
template <class Function>
Function FindFunction(HMODULE library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

}  // namespace

int main(int argc, char** argv)
{
    const char* libraryPath = argc > 1 ? argv[1] : "satwecvt.dll";
    const HMODULE library = ::LoadLibraryA(libraryPath);
    if (library == nullptr) {
        const DWORD cause = ::GetLastError();  // 193: the library's width is not the host's
        std::cerr << libraryPath << " cannot be loaded: Windows error " << cause << "\n";
        return 2;
    }
    const auto convertFile2 = FindFunction<SatwecvtConvertFile2>(library, "ConvertFile2");
    if (convertFile2 == nullptr) {
        std::cerr << libraryPath << " has no ConvertFile2\n";
        return 2;
    }

    std::string outputPath;
    const int result = convertFile2(outputPath);
    std::cout << "result " << result << "\n";
    if (result == SATWECVT_WRITTEN) {
        std::cout << "path " << outputPath << "\n";
    }
    ::FreeLibrary(library);
    return 0;
}
