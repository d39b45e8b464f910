// Reads a model text file back. The reader is strict, since such a file is written by a program and read by another
// one: it takes the blocks in their order, each keyword line and data line in the one way in which it is written, as
// many comment lines as belong to a keyword, and the empty lines. A block is left out only where there is nothing for
// it.
//
// A real may be written in another way than printf's, as 1.50 for 1.5. Whether the numbers of one block fit those of
// another is not asked.
#pragma once

#include "modelfile/ModelFile.h"

#include <string_view>

namespace satwecvt {

/// Reads the text of a model text file. Throws CModelFileError where the text is none; takes any text, in a time
/// proportional to its length.
CModelFile ReadModelFile(std::string_view text);

}  // namespace satwecvt
