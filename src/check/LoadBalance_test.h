// A building with loads, and its model, as the balance takes them.
#pragma once

#include "check/LoadBalance.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

namespace satwecvt {

inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

inline constexpr std::int32_t kDead = 0;
inline constexpr std::int32_t kLive = 1;

inline constexpr std::int32_t kBeam = 8;       // element 101 from node 1 to node 2, 4 long
inline constexpr std::int32_t kPointBeam = 9;  // element 102, of no length
inline constexpr std::int32_t kWall = 3;       // element 201, whose first row is 4 long

inline CBeamLoad ForceLine(double force, std::int32_t element = 101)
{
    return {element, EBeamLoad::Concentrated, {{{0.5, force}}}};
}

inline CBeamLoad SpreadLine(const std::array<CPlacedValue, 4>& pairs, std::int32_t element = 101)
{
    return {element, EBeamLoad::Distributed, pairs};
}

/// A building of the stories 1 and 2, and its model; all members belong to story 2.
class LoadBalance : public testing::Test {
protected:
    LoadBalance()
    {
        AddNode(1, 0, 3);
        AddNode(2, 4, 3);
        AddNode(3, 0, 0);
        AddNode(4, 4, 0);
        T_SATWE_STIF_D story;
        story.key = 2;
        story.beams.Insert(kBeam, Beam(101, 1, -2));
        story.beams.Insert(kPointBeam, Beam(102, 2, 2));
        story.walls.Insert(kWall, {201, 2, {}, {1, 2}, {3, 4}, 40});
        input.stories.Insert(1, T_SATWE_STIF_D());
        input.stories.Insert(2, story);
        input.stories.SortByKey();
        model.frameElements = {{101, 1, 1, 1, 2, 0}, {102, 1, 1, 2, 2, 0}};
        model.planarElements = {{EPlanarElement::Wall, 201, 1, 1, {3, 4, 2, 1}}};
        model.loadCases.resize(2);
    }

    static T_SATWE_STBM_D Beam(std::int32_t seq, std::int32_t nodeI, std::int32_t nodeJ)
    {
        T_SATWE_STBM_D beam;
        beam.seq = seq;
        beam.nodeI = nodeI;
        beam.nodeJ = nodeJ;
        return beam;
    }

    void AddNode(std::int32_t number, double x, double z)
    {
        input.nodes.Insert(number, {number, number, x, 0, z});
        model.nodes.push_back({number, x, 0, z});
    }

    /// The only beam of story 3: element 104 from node 8 to node 9. They stand at these x, and at others in the model,
    /// where six digits are left of them.
    void AddBeam(const std::array<double, 2>& x, const std::array<double, 2>& printed, double z = 3)
    {
        T_SATWE_STIF_D story;
        story.beams.Insert(kBeam, Beam(104, 8, 9));
        input.stories.Insert(3, story);
        model.frameElements.push_back({104, 1, 1, 8, 9, 0});
        for (std::int32_t end : {0, 1}) {
            const auto i = static_cast<std::size_t>(end);
            input.nodes.Insert(8 + end, {8 + end, 8 + end, x[i], 0, z});
            model.nodes.push_back({8 + end, printed[i], 0, z});
        }
    }

    /// A record of a block, in the next line of the load file.
    void Record(std::int32_t type, std::int32_t member, const std::array<double, 4>& value,
                std::int32_t loadCase = kDead, std::int32_t block = 2)
    {
        input.loads.Add({block, member, static_cast<ELoadType>(type), loadCase, value, ++line});
    }

    /// A line of the model, under both cases where it is dead.
    void Line(const CNodalLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.nodalLoads.push_back(load); });
    }
    void Line(const CBeamLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.beamLoads.push_back(load); });
    }
    void Line(const CEdgeLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.edgeLoads.push_back(load); });
    }

    /// A finding about the record added last, told twice where it is dead.
    void Told(EFinding code, double value = 0.0, std::int32_t loadCase = kDead)
    {
        CFinding finding = MakeFinding(code, {ESource::LoadFile, line});
        finding.values[0] = value;
        findings.insert(findings.end(), loadCase == kDead ? 2 : 1, finding);
    }

    std::vector<CBalanceRow> Rows() const { return BalanceLoads(input, model, findings); }

    /// The only row, which is dead and belongs to story 2.
    CBalanceRow Row() const
    {
        const std::vector<CBalanceRow> rows = Rows();
        EXPECT_EQ(1U, rows.size());
        EXPECT_EQ(2, rows.at(0).story);
        EXPECT_EQ(0, rows.at(0).loadCase);
        return rows.at(0);
    }

    CSatweModel input;
    CModelFile model;
    std::vector<CFinding> findings;
    std::int32_t line = 0;

private:
    template <class AddLine>
    void ForCases(std::int32_t loadCase, AddLine addLine)
    {
        if (loadCase == kDead) {
            addLine(model.loadCases[0]);
        }
        addLine(model.loadCases[1]);
    }
};

inline void ExpectSum(std::int64_t count, double fz, const CForceSum& sum)
{
    EXPECT_EQ(count, sum.count);
    EXPECT_DOUBLE_EQ(fz, sum.fz);
}

}  // namespace satwecvt
