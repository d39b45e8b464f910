// Does the model carry what the input says? The resultants of all loads, story by story and case by case: as the load
// file has them, as the model text file has them, and what findings took away in between.
//
// Equality of resultants is not equality of moments, and says nothing of loads that were never read.
#pragma once

#include "model/SatweModel.h"
#include "modelfile/ModelFile.h"
#include "satwecvt/Finding.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace satwecvt {

/// A sum of forces in the units of the files, positive as in the load file: downward for z.
struct CForceSum {
    std::int64_t count = 0;  // load records; in the model, lines
    double fx = 0.0;
    double fy = 0.0;
    double fz = 0.0;
};

/// The loads of one block of the load file and one case.
struct CBalanceRow {
    std::optional<std::int32_t> story;  // the block's number; none for loads of blocks without a story in the model
    std::int32_t loadCase = 0;          // 0 dead, 1 live
    CForceSum read;                     // of the records that were read and can be summed
    CForceSum model;                    // of the lines of the model; live: those of LiveLoad less those of DeadLoad
    CForceSum lost;                     // of what findings took away; the count is of whole records
    std::int64_t notSummed = 0;         // records that have no resultant of their own
    double roundingBound = 0.0;         // how far read - lost and model may be apart by the six digits of the model

    /// Whether read - lost = model within the bound. Rows with records that were not summed cannot be held together.
    bool Holds() const noexcept;
};

/// The balance, in the order of the blocks; the dead loads of a block in front of its live ones. Rows without a load
/// are left out. `findings` are those that the conversion of `input` to `model` told.
std::vector<CBalanceRow> BalanceLoads(const CSatweModel& input, const CModelFile& model,
                                      std::span<const CFinding> findings);

}  // namespace satwecvt
