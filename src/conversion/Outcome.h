#pragma once

#include "check/LoadBalance.h"
#include "conversion/Overview.h"
#include "model/SatweModel.h"
#include "modelfile/ModelFile.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

/// All that the program knows of a conversion when it has ended.
struct COutcome {
    CConversionReport report;
    std::vector<CFinding> told;         // in the order in which the conversion told them, dead loads under both cases
    std::vector<CFinding> findings;     // those and the doubts about the model, each once, in the order of their places
    std::optional<COverview> overview;  // none when nothing was read
    std::optional<std::vector<CBalanceRow>> loads;  // none when nothing was written, or nobody asked
    std::shared_ptr<const CSatweModel> input;       // that was converted; only with `loads`
    std::shared_ptr<const CModelFile> modelFile;    // that was read back; only with `loads`
    bool isKept = false;                            // the model and the log have taken their places

    /// Whether the conversion made a whole model.
    bool IsWhole() const noexcept { return report.result == kWritten && !report.hasFileError; }
};

}  // namespace satwecvt
