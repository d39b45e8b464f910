// Model texts for the tests, put together from lines of data.
#pragma once

#include "modelfile/ModelFileError.h"
#include "modelfile/ModelReader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace satwecvt {

/// The lines of data of every block, each line with its line feed. A block without lines is left out. Nodes and
/// supports have to be there.
struct CModelLines {
    std::string nodes{"  1, 0, 0, 0\n"};
    std::string elements{};
    std::string materials{};
    std::string sections{};
    std::string thicknesses{};
    std::string supports{"  1, 111111\n"};
    std::string releases{};
    std::string offsets{};
    std::string nodalLoads{};  // these three of DeadLoad
    std::string beamLoads{};
    std::string edgeLoads{};
};

/// A keyword's line, comment lines, lines of data and an empty line.
inline std::string BlockText(const std::string& keywordLine, int comments, const std::string& lines)
{
    std::string block = keywordLine + "\n";
    for (; comments > 0; --comments) {
        block += "; comment\n";
    }
    return block + lines + "\n";
}

inline std::string BlockUnlessEmpty(const std::string& keywordLine, int comments, const std::string& lines)
{
    return lines.empty() ? "" : BlockText(keywordLine, comments, lines);
}

inline const std::string kVersionText = "*VERSION\n  5.8.0\n\n";
inline const std::string kNodesText = BlockText("*NODE    ; Nodes", 1, "  1, 0, 0, 0\n");
inline const std::string kSupportsText = BlockText("*CONSTRAINT    ; Supports", 1, "  1, 111111\n");
inline const std::string kLoadCasesText =
    BlockText("*STLDCASE    ; Static Load Cases", 1, "  DeadLoad, D, \n  LiveLoad, L, \n");

/// All that has to be there. It ends in line 16.
inline const std::string kShortestText = kVersionText + kNodesText + kSupportsText + kLoadCasesText;

/// The text of one load case with the texts of its blocks; one without loads is an empty line.
inline std::string LoadsText(const std::string& name, const std::string& nodal = "\n", const std::string& beam = "\n",
                             const std::string& edge = "\n")
{
    return "*USE-STLD, " + name + "\n\n" + nodal + beam + edge + "; End of data for load case [" + name +
           "] -------------------------\n\n";
}

inline std::string DeadLoadsText(const CModelLines& lines)
{
    const auto block = [](const std::string& keywordLine, int comments, const std::string& loads) {
        return loads.empty() ? "\n" : BlockText(keywordLine, comments, loads);
    };
    return LoadsText("DeadLoad", block("*CONLOAD    ; Nodal Loads", 1, lines.nodalLoads),
                     block("*BEAMLOAD    ; Element Beam Loads", 2, lines.beamLoads),
                     block("*PRESSURE    ; Pressure Loads", 5, lines.edgeLoads));
}

/// A whole model text, which ends behind the load cases where there is no load.
inline std::string ModelTextOf(const CModelLines& lines)
{
    const bool hasLoads = !lines.nodalLoads.empty() || !lines.beamLoads.empty() || !lines.edgeLoads.empty();
    return kVersionText + BlockUnlessEmpty("*NODE    ; Nodes", 1, lines.nodes) +
           BlockUnlessEmpty("*ELEMENT    ; Elements", 4, lines.elements) +
           BlockUnlessEmpty("*MATERIAL    ; Material", 6, lines.materials) +
           BlockUnlessEmpty("*SECTION    ; Section", 19, lines.sections) +
           BlockUnlessEmpty("*THICKNESS    ; Thickness", 10, lines.thicknesses) +
           BlockUnlessEmpty("*CONSTRAINT    ; Supports", 1, lines.supports) +
           BlockUnlessEmpty("*FRAME-RLS    ; Beam End Release", 2, lines.releases) +
           BlockUnlessEmpty("*OFFSET    ; Beam End Offsets", 2, lines.offsets) + kLoadCasesText +
           (hasLoads ? DeadLoadsText(lines) + LoadsText("LiveLoad") + "\n" : "");
}

/// Lines of data for the blocks that elements need beside their own.
inline const std::string kBeamLine = "  1, BEAM, 1, 1, 1, 2, 0\n";
inline const std::string kConcreteLine = "  1, CONC, C30, 0, 0, 1, GB(RC), C30\n";
inline const std::string kSectionLine = "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0\n";
inline const std::string kThicknessLine = "  1, VALUE, YES, 120, 0\n";

/// What the reader says against a text; empty where it takes the text.
inline std::string ComplaintAbout(std::string_view text)
{
    try {
        ReadModelFile(text);
    } catch (const CModelFileError& error) {
        std::string complaint = error.what();
        EXPECT_TRUE(complaint.starts_with("line " + std::to_string(error.Line()) + ": ")) << complaint;
        return complaint;
    }
    return "";
}

}  // namespace satwecvt
