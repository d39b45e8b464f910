#pragma once

#include "satwecvt/ConversionReport.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace satwecvt {

/// How much of one kind was read and written.
struct CKindCount {
    const char* kind;
    std::optional<std::int64_t> read;  // records of the input; none for a kind that only the output has
    std::int64_t written;              // records of the output
};

/// All kinds, in the order of the summary and of the report.
std::vector<CKindCount> CountsByKind(const CConversionReport& report);

}  // namespace satwecvt
