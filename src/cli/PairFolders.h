// Folders in which pairs of files have the same two names: every folder that is named and all folders below it, but no
// links to folders, are looked at. One with both files is a pair; one with one of them alone, one that cannot be read
// and a named one without any pair are told. A folder counts once, however often and by whatever way it is met.
#pragma once

#include "cli/InputPairs.h"

#include <string>
#include <vector>

namespace satwecvt {

/// Finds the pairs with the names of `names`. They come in the order of `folders`, below each by path: a folder comes
/// before what lies in it, and names are compared byte by byte.
CInputPairs PairsInFolders(const std::vector<std::string>& folders, const CInputPair& names);

}  // namespace satwecvt
