#pragma once

#include "satwecvt/Finding.h"

#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

/// What findings of severity loss took away, and how many findings there are of each severity.
struct CLosses {
    // Records that are not in the model.
    std::int64_t walls = 0;
    std::int64_t plates = 0;
    std::int64_t nodalLoads = 0;
    std::int64_t beamLoads = 0;
    std::int64_t pressureLoads = 0;
    std::int64_t otherLoads = 0;

    // Parts of records that are.
    std::int64_t openings = 0;   // of walls
    std::int64_t triangles = 0;  // of plates
    std::int64_t loadParts = 0;  // loads cut at the end of a beam
    bool isLoadFileCut = false;  // the load file ended early

    // Findings.
    std::int64_t losses = 0;
    std::int64_t doubts = 0;
    std::int64_t notes = 0;

    std::int64_t Loads() const noexcept { return nodalLoads + beamLoads + pressureLoads + otherLoads; }
};

/// Counts ordered findings.
CLosses CountLosses(const std::vector<CFinding>& findings);

/// "2 losses, 0 doubts, 3 notes".
std::string FindingCounts(const CLosses& losses);

/// What was lost and how many doubts there are: "1 wall and 1 load lost, 2 doubts".
std::string LossesText(const CLosses& losses);

/// "1 wall", "4,990 walls".
std::string CountText(std::int64_t count, const std::string& noun, const std::string& nouns);

}  // namespace satwecvt
