// What holds for every model text file that was written completely, however odd the building: its frame and the order
// of its blocks, the look of every line, and that what a line names is there. Nothing is known here of the input.
//
// What does not hold, and is not asked for: that element and node numbers are unique, that the nodes of beams exist,
// that every material and thickness has an element (skipped triangles take numbers), that a section has lines (only
// shapes 0 to 14 do), or that a loaded node or wall was written.
#pragma once

#include "ModelText.h"
#include "satwecvt/ConversionReport.h"

#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace satwecvt {

class CModelChecker {
public:
    explicit CModelChecker(std::string_view model) : text(model) {}

    /// Checks the whole file; does not return when something is wrong.
    void Check();

    /// What was found. Beams, columns and braces look the same: all are counted as beams. Sections are those in use.
    const CWrittenCounts& Found() const { return found; }

private:
    enum class EMaterial { Concrete, Steel, Composite };

    struct CNode {
        std::int32_t number = 0;
        double x = 0.0;
        double y = 0.0;
    };
    struct CMaterial {
        EMaterial type = EMaterial::Concrete;
        double elasticRatio = 0.0;  // composite: of steel to concrete
    };
    struct CElement {
        std::int32_t number = 0;
        std::size_t material = 0;
        std::size_t property = 0;  // section or thickness
    };
    struct CLoadLines {
        bool hasNodal = false;  // the block has a header
        bool hasBeam = false;
        bool hasPressure = false;
        std::vector<std::string_view> nodal;
        std::vector<std::string_view> beam;
        std::vector<std::string_view> pressure;
    };

    void CheckNodes();
    void CheckElements();
    void CheckElement(std::string_view line);
    void CheckWall(const CLineValues& values);
    void CheckPlate(const CLineValues& values);
    const CNode& WrittenNode(double number) const;

    void CheckMaterials();
    void CheckSections();
    void CheckSection(std::string_view line);
    void CheckThicknesses();
    void CheckProperties();

    void CheckSupports();
    void CheckReleases();
    void CheckOffsets();
    void ExpectInOrderOfBeams(const std::vector<std::int32_t>& elements) const;

    void CheckLoadCases();
    void CheckLoads();
    CLoadLines TakeLoads(std::string_view loadCase);
    void CheckBeamLoad(std::string_view line) const;

    CModelText text;
    CWrittenCounts found;
    std::vector<CNode> nodes;
    std::map<std::int32_t, CNode> nodeOfNumber;  // of several with one number the last
    std::vector<CElement> beams;
    std::vector<CElement> planes;  // walls and triangles
    std::vector<CMaterial> materials;
    std::map<std::size_t, double> sections;  // those with lines: the elastic ratio of composite ones, else 0
    std::size_t thicknesses = 0;
};

/// Checks that a message log holds nothing but known messages; answers how many.
std::int64_t CheckMessageLog(std::string_view log);

}  // namespace satwecvt
