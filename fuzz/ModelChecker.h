// What holds for every model text file that was written completely, however odd the building: it can be read, its
// numbers are written as printf does it, what a line names is there, and what stands in an order does so. Nothing is
// known here of the input.
//
// What does not hold, and is not asked for: that element and node numbers are unique, that the nodes of beams exist,
// that every material and thickness has an element (skipped triangles take numbers), that a section has lines (only
// shapes 0 to 14 do), or that a loaded node or wall was written.
#pragma once

#include "modelfile/ModelFile.h"

#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace satwecvt {

/// How much of each kind a model file has. Beams, columns and braces look the same: all are counted as beams. Sections
/// are those in use, loads those of both load cases.
struct CFoundCounts {
    std::int64_t nodes = 0;
    std::int64_t beams = 0;
    std::int64_t walls = 0;
    std::int64_t plates = 0;
    std::int64_t materials = 0;
    std::int64_t sections = 0;
    std::int64_t thicknesses = 0;
    std::int64_t supports = 0;
    std::int64_t releases = 0;
    std::int64_t offsets = 0;
    std::int64_t nodalLoads = 0;
    std::int64_t beamLoads = 0;
    std::int64_t pressureLoads = 0;
};

class CModelChecker {
public:
    explicit CModelChecker(std::string_view modelText) : text(modelText) {}

    /// Checks the whole file; does not return when something is wrong.
    void Check();

    const CFoundCounts& Found() const { return found; }

private:
    void CheckNodes();
    void CheckElements();
    void CheckWall(const CPlanarElement& wall) const;
    const CNode& WrittenNode(std::int32_t number) const;

    void CheckMaterials() const;
    void CheckSections();
    void CheckThicknesses() const;
    void CheckFrameProperties();
    void CheckPlanarProperties() const;
    const CMaterial* WrittenMaterial(std::int32_t number) const;

    void CheckSupports() const;
    void CheckReleases() const;
    void CheckOffsets() const;
    void ExpectInOrderOfBeams(const std::vector<std::int32_t>& elements) const;

    void CheckLoads() const;
    void CheckBeamLoads(const CLoadCase& loadCase) const;

    void Count();

    std::string_view text;
    CModelFile model;
    CFoundCounts found;
    std::map<std::int32_t, CNode> nodeOfNumber;     // of several with one number the last
    std::map<std::int32_t, double> ratioOfSection;  // of those with lines: the elastic ratio of composite ones, else 0
};

/// Checks that a message log holds nothing but known messages; returns how many.
std::int64_t CheckMessageLog(std::string_view log);

}  // namespace satwecvt
