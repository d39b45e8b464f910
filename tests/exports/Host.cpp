#include "satwecvt/satwecvt.h"

#include <string>

int main()
{
    SatwecvtConvertFile convertFile = ConvertFile;
    int result = convertFile();
#ifndef CONVERTFILE_ALONE
    std::string path;
    result = ConvertFile2(path);
#endif
    return result == SATWECVT_WRITTEN ? 0 : 1;
}
