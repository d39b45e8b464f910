#include "check/LoadBalance.h"

#include "check/LoadLines.h"
#include "check/LostForces.h"
#include "check/RecordForce.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace satwecvt {

namespace {

/// A row while it grows.
struct CRowSums {
    CLineSum read;
    CLineSum lost;
    CLineSum model;
    std::int64_t notSummed = 0;
};

/// The dead and the live row of a block.
using CBlockSums = std::array<CRowSums, 2>;

/// The lines of records that share one with another: the pieces of a line that is too long for one.
std::vector<std::int32_t> SharedLines(const CLoadTable& loads)
{
    std::vector<std::int32_t> shared;
    std::int32_t last = 0;
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

void AddIf(bool isAdded, const CLineSum& lines, CLineSum& sum)
{
    if (isAdded) {
        sum.force += lines.force;
    }
    sum.count += lines.count;
}

bool IsSame(const CBounded& a, const CBounded& b)
{
    return a.value == b.value;
}

/// What LiveLoad has of a record more than DeadLoad has: lines that say the same are no difference, however they are
/// rounded.
CLineSum Less(const CLineSum& live, const CLineSum& dead)
{
    CLineSum more{{}, live.count - dead.count};
    if (!IsSame(live.force.x, dead.force.x) || !IsSame(live.force.y, dead.force.y) ||
        !IsSame(live.force.z, dead.force.z)) {
        more.force += live.force;
        more.force += -dead.force;
    }
    return more;
}

bool IsEmpty(const CRowSums& row)
{
    const auto isNothing = [](const CBounded& force) { return force.value == 0.0; };
    const CBoundedForce& model = row.model.force;
    return row.read.count == 0 && row.notSummed == 0 && row.model.count == 0 && isNothing(model.x) &&
           isNothing(model.y) && isNothing(model.z);
}

CForceSum SumOf(const CLineSum& sum)
{
    return {sum.count, sum.force.x.value, sum.force.y.value, sum.force.z.value};
}

CBalanceRow RowOf(std::optional<std::int32_t> story, std::int32_t loadCase, const CRowSums& sums)
{
    CBoundedForce left = sums.read.force;
    left += -sums.lost.force;
    left += -sums.model.force;
    return {story,
            loadCase,
            SumOf(sums.read),
            SumOf(sums.model),
            SumOf(sums.lost),
            sums.notSummed,
            {left.x.bound, left.y.bound, left.z.bound}};
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
    void AddRecord(const T_SATWE_STLD_D& load);
    bool AddForce(const T_SATWE_STLD_D& load, const CLoadedObject& object, const CLostForce* loss, CRowSums& row);
    void AddLines(const T_SATWE_STLD_D& load, const CLoadedObject& object, bool isSummed);
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

/// Adds what the record says, and what is lost of it; returns false when it cannot be summed.
bool CBalance::AddForce(const T_SATWE_STLD_D& load, const CLoadedObject& object, const CLostForce* loss, CRowSums& row)
{
    const std::optional<CBoundedForce> force = RecordForce(load, object);
    const bool isPart = loss != nullptr && loss->kind == CLostForce::EKind::Part;
    const CBoundedForce part = isPart ? MissingPart(*loss, load, object) : CBoundedForce();
    if (!force || !part.IsFinite() || std::binary_search(sharedLines.begin(), sharedLines.end(), load.line)) {
        ++row.notSummed;
        return false;
    }
    row.read.Add(*force);
    if (isPart) {
        row.lost.force += part;
    } else if (loss != nullptr) {
        row.lost.Add(*force);
    }
    return true;
}

/// What cannot be summed makes no statement, so its lines count as far as they are numbers.
void CBalance::AddLines(const T_SATWE_STLD_D& load, const CLoadedObject& object, bool isSummed)
{
    const auto isAdded = [isSummed](const CLineSum& taken) { return isSummed || taken.force.IsFinite(); };
    CBlockSums& sums = SumsOf(load.storyId);
    const CLineSum live = liveLines.Take(load, object);
    if (load.loadCase != 0) {
        AddIf(isAdded(live), live, sums[1].model);
        return;
    }
    const CLineSum dead = deadLines.Take(load, object);
    AddIf(isAdded(dead), dead, sums[0].model);
    const CLineSum more = Less(live, dead);
    AddIf(isAdded(more), more, sums[1].model);
}

void CBalance::AddRecord(const T_SATWE_STLD_D& load)
{
    const CLoadedObject object = objects.Find(load);
    const CLostForce* loss = lost.Find(load.line);
    CRowSums& row = SumsOf(load.storyId)[load.loadCase == 0 ? 0 : 1];
    const bool isSummed = AddForce(load, object, loss, row);
    if (loss == nullptr || loss->kind != CLostForce::EKind::LeftOut) {
        AddLines(load, object, isSummed);
    }
}

std::vector<CBalanceRow> CBalance::Rows()
{
    input.loads.Visit([this](const T_SATWE_STLD_D& load) { AddRecord(load); });
    const CLineSum deadRest = deadLines.TakeRest();
    AddIf(true, deadRest, noBlock[0].model);
    AddIf(true, Less(liveLines.TakeRest(), deadRest), noBlock[1].model);

    std::vector<CBalanceRow> rows;
    const auto add = [&rows](std::optional<std::int32_t> story, const CBlockSums& sums) {
        for (const std::int32_t loadCase : {0, 1}) {
            const CRowSums& row = sums[static_cast<std::size_t>(loadCase)];
            if (!IsEmpty(row)) {
                rows.push_back(RowOf(story, loadCase, row));
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
    if (notSummed > 0) {
        return true;
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
