#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

/// The path of the model text file that belongs to a structure file: everything before the last "." of the whole path,
/// and ".vkm" behind it. The whole path, not the file name alone: "D:\rev1.2\tower" gives "D:\rev1.vkm".
std::string OutputPath(std::string_view structurePath);

}  // namespace satwecvt
