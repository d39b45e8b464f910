#include "writer/OutputPath.h"

namespace satwecvt {

std::string OutputPath(std::string_view structurePath)
{
    std::string path(structurePath.substr(0, structurePath.rfind('.')));
    path += ".vkm";
    return path;
}

}  // namespace satwecvt
