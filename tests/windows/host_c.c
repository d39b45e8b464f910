/* A host in plain C: loads the library named on the command line, calls ConvertFile, frees the library, more often
   than it should, and ends with 100 plus the result. The library has to stay loaded: code that was once called is never
   taken away. */
#include <windows.h>

int main(int argc, char** argv)
{
    HMODULE library = argc > 1 ? LoadLibraryA(argv[1]) : NULL;
    union {
        FARPROC address;
        int (*call)(void);
    } convertFile;
    int result;
    int times;

    if (library == NULL) {
        return 1;
    }
    convertFile.address = GetProcAddress(library, "ConvertFile");
    if (convertFile.address == NULL) {
        return 2;
    }
    result = convertFile.call();
    for (times = 0; times < 10; ++times) {
        FreeLibrary(library);
    }
    return GetModuleHandleA(argv[1]) == library ? 100 + result : 3;
}
