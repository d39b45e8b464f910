// Structure file or load file: told from the first data lines, for users who gave the one in place of the other.
#pragma once

#include "satwecvt/FileSystem.h"

#include <string>

namespace satwecvt {

/// Whether a file begins as a structure file: a header of at least three counts, then the ten numbers and the four of a
/// section definition. A file that cannot be read does not.
bool LooksLikeStructureFile(CFileSystem& system, const std::string& path);

/// Whether a file may be a load file: it begins with a count alone, or with a count and a load line of a known type,
/// and not as a structure file.
bool LooksLikeLoadFile(CFileSystem& system, const std::string& path);

}  // namespace satwecvt
