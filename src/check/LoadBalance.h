// Does the model carry what the input says? The resultants of all loads, block by block of the load file and case by
// case: as the load file has them, as the model text file has them, and what findings took away in between.
//
// Both sides belong to the block that has the record, also where its node or wall row stands in another story: a line
// of the model goes to the record that it was made of, by their common order and by the node or element that both name
// (check/LoadLines.h). So the lines of each record are held against it, too: among thousands of others the rounding of
// their coordinates would hide it. A line that no record names belongs to no block.
//
// Records that have no resultant of their own (check/RecordForce.h) are counted apart. So are those whose lines may be
// off by anything, since six digits of the nodes leave the length open and the force is huge; and those in a line of
// more than 499 characters, whose pieces are records of one line: findings do not tell them apart.
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

/// How far two sums may be apart.
struct CForceBound {
    double fx = 0.0;
    double fy = 0.0;
    double fz = 0.0;
};

/// The loads of one block of the load file and one case.
struct CBalanceRow {
    std::optional<std::int32_t> story;  // the block's number; none for all blocks without a story in the model
    std::int32_t loadCase = 0;          // 0 dead, 1 live
    CForceSum read;                     // of the records that were read and can be summed
    CForceSum model;                    // of the lines of the model; live: those of LiveLoad less those of DeadLoad
    CForceSum lost;                     // of what findings took away of them; the count is of whole records
    std::int64_t notSummed = 0;         // records that have no resultant of their own; in `model` are their lines
    std::int64_t off = 0;               // summed records whose own lines are not what they say, less what was lost
    CForceBound roundingBound;          // how far read - lost and model may be apart by rounding

    /// Whether read - lost = model within the bound, for every record that can be summed and for their sums. Sums with
    /// records that were not summed cannot be held together: of them nothing is asked.
    bool Holds() const noexcept;
};

/// The balance in the order of the blocks, those without a story behind the others; the dead loads of a block in front
/// of its live ones. Rows without a load are left out. `findings` are those that the conversion of `input` to `model`
/// told, in any order. Takes time in proportion to loads and lines.
std::vector<CBalanceRow> BalanceLoads(const CSatweModel& input, const CModelFile& model,
                                      std::span<const CFinding> findings);

}  // namespace satwecvt
