/* Finds both functions of the library at run time, and calls neither: there is no user here to answer a dialog. */

#include "satwecvt/satwecvt.h"

#include <stdio.h>
#include <windows.h>

int main(void)
{
    const HMODULE library = LoadLibraryA("satwecvt.dll");
    const SatwecvtConvertFile convertFile = (SatwecvtConvertFile)(void*)GetProcAddress(library, "ConvertFile");
    const FARPROC convertFile2 = GetProcAddress(library, "ConvertFile2");
    printf("ConvertFile %s\n", library && convertFile ? "found" : "missing");
    printf("ConvertFile2 %s\n", library && convertFile2 ? "found" : "missing");
    return 0;
}
