// The numbers of a model text as printf writes them: %d for integers, %g for the others. A reader takes 1.0 and 1e0 for
// the same number, but whoever compares two models by their bytes does not.
#pragma once

#include <string_view>

namespace satwecvt {

/// Whether a text is an integer of 32 bits as %d writes it.
bool IsPrintedInteger(std::string_view text);

/// Whether a text is a real as %g writes it. One without a value is nan, whatever its sign.
bool IsPrintedReal(std::string_view text);

/// Checks every number of a text that is a model file in every other respect; does not return when one is written in
/// another way.
void CheckPrintedNumbers(std::string_view model);

}  // namespace satwecvt
