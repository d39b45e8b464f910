// What a batch would write twice, or over something that it reads: with many conversions at once nobody could tell
// which would win.
#pragma once

#include "satwecvt/ConversionReport.h"

#include <string>
#include <vector>

namespace satwecvt {

/// The files of a batch itself.
struct CBatchFiles {
    std::string list;    // empty: none
    std::string record;  // empty: none
};

/// Tells of each output of a pair that is a file of another pair or of the batch, and of a record that is an input,
/// through links and spellings. What a pair does to its own files is told when it is converted.
std::vector<std::string> OutputClashes(const std::vector<CConversionPaths>& pairs, const CBatchFiles& batch);

}  // namespace satwecvt
