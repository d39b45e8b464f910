// The smallest host: loads satwecvt.dll, lets the user convert a building, and prints how it went. Where the header
// finds that this compiler's std::string is the library's, it asks for the model's path, too.
//
//   host [path of satwecvt.dll]

#include "satwecvt/satwecvt.h"

#include <windows.h>

#include <cstdlib>
#include <iostream>
#include <string>

namespace {

/// A function of the library; without it the program ends. GetProcAddress returns a pointer to any function: by way of
/// void* the compiler lets us say which one it is.
template <class Function>
Function FindFunction(HMODULE library, const char* name)
{
    const auto function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
    if (function == nullptr) {
        std::cerr << "the library has no " << name << "\n";
        std::exit(2);
    }
    return function;
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

#ifdef SATWECVT_HAS_CONVERTFILE2
    std::string outputPath;
    const int result = FindFunction<SatwecvtConvertFile2>(library, "ConvertFile2")(outputPath);
    std::cout << "result " << result << "\n";
    if (result == SATWECVT_WRITTEN) {
        std::cout << "path " << outputPath << "\n";
    }
#else
    std::cout << "result " << FindFunction<SatwecvtConvertFile>(library, "ConvertFile")() << "\n";
#endif
    ::FreeLibrary(library);
    return 0;
}
