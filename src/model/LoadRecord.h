#pragma once

#include <array>
#include <cstdint>

namespace satwecvt {

/// The load types that mean something to the writers. A record may hold any other number.
enum class ELoadType : std::int32_t {
    BeamForce = 1,          // value: force, its distance from end i
    BeamLinear = 2,         // value: intensities at start and end, distances of start and end
    BeamTriangle = 3,       // value: peak intensity, start distance, half length
    BeamTrapezoid = 4,      // value: intensity, length of each sloping end part
    NodeForceMoments = 11,  // value: vertical force, moments about x and y
    NodeForces = 12,        // value: vertical force, horizontal forces along x and y
    WallForce = 21,         // value: force, its distance from the first node of the wall's first row
    WallLine = 22,          // value: intensity along the wall
    Unused31 = 31,          // no writer takes it, and the beam load writer does not even count it as its own
};

/// One line of the load file as read: up to ten numbers, the first (a running number) and the last two unused.
/// Columns that the line does not have are 0.
struct T_SATWE_STLD_D {
    std::int32_t storyId = 0;       // number of the load file's block, counted from 1
    std::int32_t memberId = 0;      // column 1: node number, or key of a beam or wall within the story
    ELoadType loadType{};           // column 2
    std::int32_t loadCase = 0;      // column 3: 0 dead load, anything else live load
    std::array<double, 4> value{};  // columns 4 to 7, meaning by type; positive downward, in the file's units
};

}  // namespace satwecvt
