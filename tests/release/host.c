/* A host that Microsoft's linker would link: no run-time library, no header of Windows. It ends with 7 when both
 * functions of the library came from its import library; it calls neither, since nobody is here to answer a dialog. */

#include "satwecvt/satwecvt.h"

int ConvertFile2(void* path); /* C knows no std::string, but the import library knows its name */

int start(void)
{
    int (*volatile convertFile)(void) = ConvertFile;
    int (*volatile convertFile2)(void*) = ConvertFile2;
    return convertFile != 0 && convertFile2 != 0 ? 7 : 8;
}
