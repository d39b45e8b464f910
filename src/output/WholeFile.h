#pragma once

#include "satwecvt/FileSystem.h"

#include <string>
#include <string_view>

namespace satwecvt {

/// Writes these bytes and nothing else to a file. Throws CFileError when they are not all there.
void WriteWholeFile(CFileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace satwecvt
