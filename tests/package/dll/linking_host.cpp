// Both functions come from the import library; a program that lacks one of them does not start.

#include "satwecvt/satwecvt.h"

#include <cstdio>

int main()
{
    const SatwecvtConvertFile volatile convertFile = ConvertFile;
    const SatwecvtConvertFile2 volatile convertFile2 = ConvertFile2;
    std::printf("ConvertFile %s\n", convertFile != nullptr ? "found" : "missing");
    std::printf("ConvertFile2 %s\n", convertFile2 != nullptr ? "found" : "missing");
}
