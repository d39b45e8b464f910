/* A host in plain C: loads the library named on the command line, calls ConvertFile and ends with 100 plus its result. */
#include <windows.h>

int main(int argc, char** argv)
{
    HMODULE library = argc > 1 ? LoadLibraryA(argv[1]) : NULL;
    union {
        FARPROC address;
        int (*call)(void);
    } convertFile;
    int result;

    if (library == NULL) {
        return 1;
    }
    convertFile.address = GetProcAddress(library, "ConvertFile");
    if (convertFile.address == NULL) {
        return 2;
    }
    result = convertFile.call();
    FreeLibrary(library);
    return 100 + result;
}
