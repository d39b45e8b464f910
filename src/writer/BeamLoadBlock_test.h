// Beams of a story to put loads on, and the lines that are written of these.
#pragma once

#include "text/WrittenText_test.h"
#include "writer/BeamLoadBlock.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>

namespace satwecvt {

inline const std::string kHeader =
    "*BEAMLOAD    ; Element Beam Loads\n"
    "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
    "; ELEM_LIST, CMD, TYPE, DIR, VX, VY, VZ, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n";

inline constexpr std::int32_t kDead = 0;
inline constexpr std::int32_t kLive = 1;

inline constexpr std::int32_t kBeam = 17;             // element 101, 5.0 long
inline constexpr std::int32_t kBeamWithOffsets = 18;  // element 102, the same with negative end nodes
inline constexpr std::int32_t kPointBeam = 19;        // element 103, of no length
inline constexpr std::int32_t kLostBeam = 20;         // an end node of it was never written

/// A model of story 2 with four beams.
class BeamLoadBlock : public testing::Test {
protected:
    BeamLoadBlock()
    {
        T_SATWE_STIF_D story;
        story.key = 2;
        story.storyNo = 20;
        story.beams.Insert(kBeam, Beam(101, 1, 2));
        story.beams.Insert(kBeamWithOffsets, Beam(102, -1, -2));
        story.beams.Insert(kPointBeam, Beam(103, 2, 2));
        story.beams.Insert(kLostBeam, Beam(104, 1, 99));
        model.stories.Insert(2, story);
        writtenNodes.Add(first);
        writtenNodes.Add(last);
        writtenNodes.Complete();
    }

    void AddLoad(std::int32_t member, ELoadType type, std::int32_t loadCase, const std::array<double, 4>& value)
    {
        model.loads.Add({2, member, type, loadCase, value, ++loadLine});
    }

    std::string Written(ELoadCase loadCase)
    {
        findings = {};
        return WrittenText([&](COutputFile& modelFile) {
            CLoadOutput output{modelFile, findings, model, writtenNodes, lostWalls, counts};
            WriteBeamLoads(output, loadCase);
        });
    }

    /// The line of a single dead load.
    std::string LineOf(ELoadType type, const std::array<double, 4>& value, std::int32_t member = kBeam)
    {
        model.loads = {};
        loadLine = 0;
        AddLoad(member, type, kDead, value);
        const std::string text = Written(ELoadCase::DeadLoad);
        EXPECT_EQ(kHeader, text.substr(0, kHeader.size()));
        EXPECT_EQ('\n', text.back());
        return text.substr(kHeader.size(), text.size() - kHeader.size() - 1);
    }

    /// One finding was told, about a dead load of story 2.
    void ExpectFinding(EFinding code, ESeverity severity, EObject object, double value = 0.0, std::int64_t line = 1)
    {
        ASSERT_EQ(1U, findings.Findings().size());
        const CFinding& finding = findings.Findings()[0];
        EXPECT_EQ(code, finding.code);
        EXPECT_EQ(severity, finding.severity);
        EXPECT_EQ(ESource::LoadFile, finding.place.source);
        EXPECT_EQ(line, finding.place.line);
        EXPECT_EQ(object, finding.object);
        EXPECT_EQ(2, finding.story);
        EXPECT_EQ(20, finding.storyNo);
        EXPECT_EQ(0, finding.loadCase);
        EXPECT_DOUBLE_EQ(value, finding.values[0]);
    }

    CSatweModel model;
    CWrittenNodes writtenNodes;
    CLostWalls lostWalls;
    CWrittenCounts counts;
    CFindingList findings;

private:
    static T_SATWE_STBM_D Beam(std::int32_t seq, std::int32_t nodeI, std::int32_t nodeJ)
    {
        T_SATWE_STBM_D beam;
        beam.seq = seq;
        beam.nodeI = nodeI;
        beam.nodeJ = nodeJ;
        return beam;
    }

    T_SATWE_STND_D first{1, 1, 1.0, 1.0, 3.0};
    T_SATWE_STND_D last{2, 2, 1.0, 6.0, 3.0};
    std::int32_t loadLine = 0;
};

}  // namespace satwecvt
