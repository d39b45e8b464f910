#include "satwecvt/ConvertSatwe.h"

namespace satwecvt {

CConversionPaths LibraryPaths(std::string_view structurePath, std::string_view loadPath)
{
    CConversionPaths paths;
    paths.structure = structurePath;
    paths.load = loadPath;
    paths.model = structurePath.substr(0, structurePath.rfind('.'));
    paths.model += ".vkm";
    paths.messageLog = "satwecvt.msg";
    return paths;
}

}  // namespace satwecvt
