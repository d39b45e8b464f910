// A conversion by the library with nobody listening: what the program's findings and checks are measured against.
//
//   silent_conversion STRUCTURE LOAD MODEL LOG

#include "satwecvt/ConvertSatwe.h"
#include "satwecvt/SilentInterface.h"

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fputs("silent_conversion STRUCTURE LOAD MODEL LOG\n", stderr);
        return 2;
    }
    satwecvt::CSilentInterface nobody;
    satwecvt::CConvertSatwe converter(nobody);
    return converter.Convert(satwecvt::CConversionPaths{argv[1], argv[2], argv[3], argv[4]}) == satwecvt::kWritten ? 0
                                                                                                                   : 1;
}
