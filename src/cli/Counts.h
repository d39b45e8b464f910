#pragma once

#include "cli/Losses.h"
#include "satwecvt/ConversionReport.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace satwecvt {

/// What became of one kind of record.
struct CKindCount {
    const char* kind;                       // as the report names it
    const char* name;                       // as the summary names it
    std::optional<std::int64_t> read;       // records of the input; none for a kind that only the output has
    std::optional<std::int64_t> converted;  // of them; none too when there is no whole model
    std::optional<std::int64_t> lost;       // of them: read = converted + lost
    std::int64_t lines;                     // of this kind in the model; of stories those that were written
};

/// All kinds, in the order of the summary and of the report. `losses` is null when there is no whole model.
std::vector<CKindCount> CountsByKind(const CConversionReport& report, const CLosses* losses);

}  // namespace satwecvt
