#include "check/LoadBalance.h"

#include "check/LoadLines.h"
#include "check/LostForces.h"
#include "check/RecordForce.h"
#include "check/RowSums.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace satwecvt {

namespace {

/// The dead and the live row of a block.
using CBlockSums = std::array<CRowSums, 2>;

/// The lines of records that share one with another: the pieces of a line that is too long for one.
std::vector<std::int32_t> SharedLines(const CLoadTable& loads)
{
    std::vector<std::int32_t> shared;
    std::int32_t last = -1;
    loads.Visit([&](const T_SATWE_STLD_D& load) {
        if (load.line == last && (shared.empty() || shared.back() != last)) {
            shared.push_back(last);
        }
        last = load.line;
    });
    std::sort(shared.begin(), shared.end());
    return shared;
}

const CLoadCase& LinesOf(const CModelFile& modelFile, std::size_t loadCase)
{
    static const CLoadCase kNone;
    return loadCase < modelFile.loadCases.size() ? modelFile.loadCases[loadCase] : kNone;
}

class CBalance {
public:
    CBalance(const CSatweModel& satweModel, const CModelFile& modelFile, std::span<const CFinding> findings)
        : input(satweModel),
          objects(satweModel),
          elements(modelFile),
          lost(findings),
          sharedLines(SharedLines(satweModel.loads)),
          deadLines(LinesOf(modelFile, 0), elements),
          liveLines(LinesOf(modelFile, 1), elements)
    {}

    std::vector<CBalanceRow> Rows();

private:
    /// A record and what becomes of it.
    struct CRecord {
        CLoadedObject object;
        std::optional<CBoundedForce> force;  // none where it cannot be summed
        CBoundedForce lost;
        bool isLostWhole;
        bool isLeftOut;  // it has no line
    };

    CRecord Examined(const T_SATWE_STLD_D& load);
    void AddRecord(const T_SATWE_STLD_D& load);
    void AddRest();
    static void AddInput(const CRecord& record, CRowSums& row);
    CBlockSums& SumsOf(std::int32_t block);

    const CSatweModel& input;
    CLoadedObjects objects;
    CLoadedElements elements;
    CLostForces lost;
    std::vector<std::int32_t> sharedLines;
    CLoadLines deadLines;
    CLoadLines liveLines;
    std::map<std::int32_t, CBlockSums> blocks;
    CBlockSums noBlock;
    std::int32_t lastBlock = 0;
    CBlockSums* lastSums = nullptr;
};

/// Loads of one block follow each other.
CBlockSums& CBalance::SumsOf(std::int32_t block)
{
    if (lastSums == nullptr || block != lastBlock) {
        lastBlock = block;
        lastSums = input.stories.Find(block) != nullptr ? &blocks[block] : &noBlock;
    }
    return *lastSums;
}

/// What a record says, and what findings say of it. A record that shares its line with others is none that they tell
/// apart: it is not summed, and another one may be left out.
CBalance::CRecord CBalance::Examined(const T_SATWE_STLD_D& load)
{
    const CLostForce* loss = lost.Find(load.line);
    const bool isShared = std::binary_search(sharedLines.begin(), sharedLines.end(), load.line);
    CRecord record{objects.Find(load), std::nullopt, {}, false, false};
    record.force = isShared ? std::nullopt : RecordForce(load, record.object);
    record.isLeftOut = loss != nullptr && loss->kind == CLostForce::EKind::LeftOut && !isShared;
    if (loss == nullptr || !record.force) {
        return record;
    }
    record.isLostWhole = loss->kind != CLostForce::EKind::Part;
    record.lost = record.isLostWhole ? *record.force : MissingPart(*loss, load, record.object);
    if (!record.lost.IsFinite()) {
        record.force.reset();
    }
    return record;
}

void CBalance::AddInput(const CRecord& record, CRowSums& row)
{
    if (!record.force) {
        ++row.notSummed;
        return;
    }
    row.read.Add(*record.force);
    row.lost.force += record.lost;
    row.lost.count += record.isLostWhole ? 1 : 0;
}

/// Dead loads stand under both cases: what LiveLoad has more of one should be nothing. A line that may be off by
/// anything cannot be held against its record, which is not summed then.
void CBalance::AddRecord(const T_SATWE_STLD_D& load)
{
    CRecord record = Examined(load);
    const CLineSum live = record.isLeftOut ? CLineSum() : liveLines.Take(load, record.object);
    const CLineSum dead = record.isLeftOut || load.loadCase != 0 ? CLineSum() : deadLines.Take(load, record.object);
    if (live.force.IsUnbounded() || dead.force.IsUnbounded()) {
        record.force.reset();
    }
    CBlockSums& sums = SumsOf(load.storyId);
    AddInput(record, sums[load.loadCase == 0 ? 0 : 1]);
    std::optional<CBoundedForce> expected = record.force;
    if (expected) {
        *expected += -record.lost;
    }
    if (load.loadCase != 0) {
        sums[1].AddLines(live, expected);
        return;
    }
    sums[0].AddLines(dead, expected);
    sums[1].AddLines(live - dead, expected ? std::optional(CBoundedForce()) : std::nullopt);
}

/// What no record has taken.
void CBalance::AddRest()
{
    const CLineSum dead = deadLines.TakeRest();
    const CLineSum live = liveLines.TakeRest();
    noBlock[0].AddLines(dead, std::nullopt);
    noBlock[1].AddLines(live - dead, std::nullopt);
    noBlock[0].off += dead.count;
    noBlock[1].off += live.count;
}

std::vector<CBalanceRow> CBalance::Rows()
{
    input.loads.Visit([this](const T_SATWE_STLD_D& load) { AddRecord(load); });
    AddRest();

    std::vector<CBalanceRow> rows;
    const auto add = [&rows](std::optional<std::int32_t> story, const CBlockSums& sums) {
        for (const std::int32_t loadCase : {0, 1}) {
            const CRowSums& row = sums[static_cast<std::size_t>(loadCase)];
            if (!row.IsEmpty()) {
                rows.push_back(row.Row(story, loadCase));
            }
        }
    };
    for (const auto& [block, sums] : blocks) {
        add(block, sums);
    }
    add(std::nullopt, noBlock);
    return rows;
}

}  // namespace

bool CBalanceRow::Holds() const noexcept
{
    if (off > 0 || notSummed > 0) {
        return off == 0;
    }
    return std::abs(read.fx - lost.fx - model.fx) <= roundingBound.fx &&
           std::abs(read.fy - lost.fy - model.fy) <= roundingBound.fy &&
           std::abs(read.fz - lost.fz - model.fz) <= roundingBound.fz;
}

std::vector<CBalanceRow> BalanceLoads(const CSatweModel& input, const CModelFile& model,
                                      std::span<const CFinding> findings)
{
    return CBalance(input, model, findings).Rows();
}

}  // namespace satwecvt
