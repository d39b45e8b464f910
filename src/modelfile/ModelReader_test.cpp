#include "modelfile/ModelReader.h"

#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

/// A text with every block and every kind of line.
std::string WholeModel()
{
    return ModelTextOf({
        .nodes = "  1, 0, 0, 0\n  2, 6000, 0, 0\n  3, 6000, 0, 3300\n  4, 0, 0, 3300\n",
        .elements = "  1, BEAM, 1, 1, 1, 2, 0\n  2, WALL, 1, 1, 1, 2, 3, 4, 1, 1\n  3, PLATE, 1, 1, 1, 2, 3, 0, 1\n",
        .materials = "  1, CONC, C30, 0, 0, 1, GB(RC), C30\n  2, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn\n"
                     "  3, SRC, SRC1, 0, 0, 1, GB(S), 16Mn, 1, GB(RC), C60\n",
        .sections = "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0\n"
                    "  2, VALUE, Sec2, CC, SB, BUILT, 300, 300, 0, 0, 0, 0\n"
                    "    90000, 0., 0., 1.1e+09, 6.75e+08, 6.75e+08\n    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n"
                    "  3, SRC, Sec3, CC, RHB, 1, 6.91484, 3.0792, 0.3, 0.2\n"
                    "      800, 700, 2, 400, 200, 12, 16, 0, 0\n"
                    "  4, COMBINED, Sec4, CC, H2T, 2, 11, 12, 13, 14, 0, 21, 22, 23, 24\n",
        .thicknesses = "  1, VALUE, YES, 120, 0\n",
        .supports = "  1, 111111\n  2, 111111\n",
        .releases = "  1, 000011, 0, 0, 0, 0, 0, 0\n      000000, 0, 0, 0, 0, 0, 0,\n",
        .offsets = "  1, GLOBAL, 0, 100, 0, 0, 100, 0,  \n",
        .nodalLoads = "4, 0, 0, -40000, 0, 0, 0\n",
        .beamLoads = "1, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n"
                     "1, BEAM, UNILOAD, GZ, NO, 0, 0, 0.4, -12, 0.6, -12, 1, 0\n",
        .edgeLoads = "2, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, 0, 0,\n",
    });
}

/// The number of the line that the reader complains about; 0 where it takes the text.
std::int64_t LineOfComplaint(const std::string& text)
{
    const std::vector<char> bytes(text.begin(), text.end());  // of its very size, for the address sanitizer
    try {
        ReadModelFile({bytes.data(), bytes.size()});
    } catch (const CModelFileError& error) {
        return error.Line();
    }
    return 0;
}

/// The number of the line that a place in a text belongs to.
std::int64_t LineAt(const std::string& text, std::size_t place)
{
    return 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n');
}

TEST(ModelReader, TheShortestTextHasANodeASupportAndTheLoadCases)
{
    const CModelFile model = ReadModelFile(
        "*VERSION\n"
        "  5.8.0\n"
        "\n"
        "*NODE    ; Nodes\n"
        "; iNO, X, Y, Z\n"
        "  1, 0, 0, 0\n"
        "\n"
        "*CONSTRAINT    ; Supports\n"
        "; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n"
        "  1, 111111\n"
        "\n"
        "*STLDCASE    ; Static Load Cases\n"
        "; LCNAME, LCTYPE, DESC\n"
        "  DeadLoad, D, \n"
        "  LiveLoad, L, \n"
        "\n");
    EXPECT_EQ(1U, model.nodes.size());
    EXPECT_EQ(1U, model.supports.size());
    EXPECT_EQ(2U, model.loadCases.size());
    EXPECT_TRUE(model.frameElements.empty());
}

TEST(ModelReader, EveryBlockIsRead)
{
    const CModelFile model = ReadModelFile(WholeModel());
    EXPECT_EQ(4U, model.nodes.size());
    EXPECT_EQ(1U, model.frameElements.size());
    EXPECT_EQ(2U, model.planarElements.size());
    EXPECT_EQ(3U, model.materials.size());
    EXPECT_EQ(4U, model.sections.size());
    EXPECT_EQ(1U, model.thicknesses.size());
    EXPECT_EQ(2U, model.supports.size());
    EXPECT_EQ(1U, model.releases.size());
    EXPECT_EQ(1U, model.offsets.size());
    EXPECT_EQ(1U, model.loadCases.at(0).nodalLoads.size());
    EXPECT_EQ(2U, model.loadCases.at(0).beamLoads.size());
    EXPECT_EQ(1U, model.loadCases.at(0).edgeLoads.size());
}

TEST(ModelReader, WhatIsWrongWithTheFrameOfATextIsTold)
{
    const std::string nodeHeader = kVersionText + "*NODE    ; Nodes\n";
    const std::string nodes = kVersionText + kNodesText;
    const std::string supports = nodes + kSupportsText;
    const struct {
        std::string text;
        std::string complaint;
    } kTexts[] = {
        {"", "line 1: the text ends too early"},
        {"\n", "line 1: '' stands where '*VERSION' should"},
        {"*VERSION", "line 1: the text ends within the line '*VERSION'"},
        {"*VERSION\r\n  5.8.0\r\n\r\n", "line 1: '*VERSION\\x0D' stands where '*VERSION' should"},
        {"\xEF\xBB\xBF*VERSION\n", "line 1: '\\xEF\\xBB\\xBF*VERSION' stands where '*VERSION' should"},
        {"*VERSION\n  5.9.0\n\n", "line 2: '  5.9.0' stands where '  5.8.0' should"},
        {"*VERSION\n  5.8.0\n*NODE    ; Nodes\n", "line 3: '*NODE    ; Nodes' stands where '' should"},
        {kVersionText, "line 4: the text ends too early"},
        {kVersionText + "\n" + kNodesText, "line 4: '' stands where '*NODE    ; Nodes' should"},
        {kVersionText + "*NODE\n", "line 4: '*NODE' stands where '*NODE    ; Nodes' should"},
        {kVersionText + kSupportsText, "line 4: '*CONSTRAINT    ; Supports' stands where '*NODE    ; Nodes' should"},
        {nodeHeader + "  1, 0, 0, 0\n", "line 5: no comment is '  1, 0, 0, 0'"},
        {nodeHeader + "; a\xC3\xA9\n", "line 5: no comment is '; a\\xC3\\xA9'"},
        {nodeHeader + "; one\n; two\n", "line 6: no node is '; two'"},
        {nodeHeader + "; one\n\n", "line 6: the block is empty"},
        {nodeHeader + "; one\n  1, 0, 0, 0\n", "line 7: the text ends too early"},
        {nodes + kNodesText, "line 8: '*NODE    ; Nodes' stands where '*CONSTRAINT    ; Supports' should"},
        {nodes + "\n" + kSupportsText, "line 8: '' stands where '*CONSTRAINT    ; Supports' should"},
        {nodes + kLoadCasesText,
         "line 8: '*STLDCASE    ; Static Load Cases' stands where '*CONSTRAINT    ; Supports' should"},
        {supports + kSupportsText, "line 12: no block that can stand here begins with '*CONSTRAINT    ; Supports'"},
        {supports + "\n" + kLoadCasesText, "line 12: no block that can stand here begins with ''"},
        {supports + "*STLDCASE    ; Static Load Cases, two\n",
         "line 12: no block that can stand here begins with '*STLDCASE    ; Static Load Cases, two'"},
        {supports + "*STLDCASE    ; Static Load Cases\n; one\n  DeadLoad, D,\n",
         "line 14: '  DeadLoad, D,' stands where '  DeadLoad, D, ' should"},
        {kShortestText + kLoadCasesText,
         "line 17: '*STLDCASE    ; Static Load Cases' stands where '*USE-STLD, DeadLoad' should"},
        {kShortestText + "\n", "line 17: '' stands where '*USE-STLD, DeadLoad' should"},
    };
    for (const auto& wrong : kTexts) {
        EXPECT_EQ(wrong.complaint, ComplaintAbout(wrong.text));
    }
}

TEST(ModelReader, ATextThatIsCutAnywhereIsRefusedInItsLastLine)
{
    const std::string text = WholeModel();
    const std::size_t loads = text.find("*USE-STLD");  // what stands in front of the loads is a whole text, too
    for (std::size_t length = 0; length < text.size(); ++length) {
        const std::string cut = text.substr(0, length);
        EXPECT_EQ(length == loads ? 0 : LineAt(text, length), LineOfComplaint(cut)) << length;
    }
}

TEST(ModelReader, ABytePutInAnywhereThatNoLineCanHoldIsRefusedInItsLine)
{
    const std::string text = WholeModel();
    for (std::size_t place = 0; place <= text.size(); ++place) {
        for (const char byte : {'\0', '\r', '\t', '\x1A', '\x7F', '\xE4'}) {
            std::string damaged = text;
            damaged.insert(place, 1, byte);
            EXPECT_EQ(LineAt(text, place), LineOfComplaint(damaged)) << place;
        }
    }
}

TEST(ModelReader, ALineLessOrMoreInTheFrameIsRefused)
{
    const std::string text = WholeModel();
    for (std::size_t begin = 0; begin < text.size(); begin = text.find('\n', begin) + 1) {
        const std::string line = text.substr(begin, text.find('\n', begin) + 1 - begin);
        std::string twice = text;
        std::string without = text;
        twice.insert(begin, line);
        without.erase(begin, line.size());
        if (line == "\n" || line[0] == '*' || line[0] == ';') {
            EXPECT_NE("", ComplaintAbout(twice)) << "twice: line " << LineAt(text, begin);
            EXPECT_NE("", ComplaintAbout(without)) << "without line " << LineAt(text, begin);
        }
    }
}

TEST(ModelReader, WhateverAByteIsChangedToTheTextIsReadOrRefused)
{
    const std::string text = WholeModel();
    const std::string bytes{'\0', '\n', '\r', ' ', ',', '-', '.', '0', '5', '9', 'e', 'n', ';', '*', '\xFF'};
    std::size_t refused = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        for (const char byte : bytes) {
            std::string damaged = text;
            damaged[place] = byte;
            const std::int64_t line = LineOfComplaint(damaged);
            EXPECT_LE(line, LineAt(damaged, damaged.size()));
            refused += line > 0 ? 1U : 0U;
        }
    }
    EXPECT_GT(refused, text.size() * bytes.size() / 2);
}

TEST(ModelReader, AComplaintQuotesTheBeginningOfALongLine)
{
    const std::string line(5000000, 'x');
    EXPECT_EQ("line 1: '" + std::string(100, 'x') + "...' stands where '*VERSION' should", ComplaintAbout(line + "\n"));
    EXPECT_EQ("line 1: the text ends within the line '" + std::string(100, 'x') + "...'", ComplaintAbout(line));
}

}  // namespace
}  // namespace satwecvt
