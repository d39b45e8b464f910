// Findings on a terminal, as compilers print them, so that an editor can jump to them.
#pragma once

#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace satwecvt {

/// A place as compilers name it: "tower.sat:1460: "; nothing for one in no file.
std::string PlaceText(const CConversionPaths& paths, const CPlace& place);

/// Prints ordered findings by code, losses first, then doubts and notes: the first ten of each code, and how many more
/// there are.
void PrintFindings(std::ostream& out, const CConversionPaths& paths, const std::vector<CFinding>& findings);

/// Prints losses and doubts with one line for each code.
void PrintProblems(std::ostream& out, const CConversionPaths& paths, const std::vector<CFinding>& findings);

}  // namespace satwecvt
