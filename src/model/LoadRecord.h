#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// The load types that have a line in the model text file, and 31. A record may hold any other number.
enum class ELoadType : std::int32_t {
    BeamForce = 1,
    BeamLinear = 2,
    BeamTriangle = 3,
    BeamTrapezoid = 4,
    NodeForceMoments = 11,
    NodeForces = 12,
    WallForce = 21,
    WallLine = 22,
    Unused31 = 31,
};

/// The block of a load case that takes a load.
enum class ELoadBlock : std::uint8_t { Nodal, Beam, Pressure, None };

/// What a load type is.
struct CLoadTraits {
    ELoadBlock block = ELoadBlock::Beam;  // other types count as beam loads, for the header of that block
    std::uint8_t valueCount = 0;          // how many values the type uses; 0: it has no line
};

namespace loadTraits {

inline constexpr std::size_t kTypes = 32;

/// By type: the only place that knows what a type is. The values are positive downward.
consteval std::array<CLoadTraits, kTypes> Table()
{
    std::array<CLoadTraits, kTypes> table{};
    const auto set = [&](ELoadType type, CLoadTraits traits) { table[static_cast<std::size_t>(type)] = traits; };
    set(ELoadType::BeamForce, {ELoadBlock::Beam, 2});          // force, its distance from end i
    set(ELoadType::BeamLinear, {ELoadBlock::Beam, 4});         // intensities at start and end, distances of both
    set(ELoadType::BeamTriangle, {ELoadBlock::Beam, 3});       // peak intensity, start distance, half length
    set(ELoadType::BeamTrapezoid, {ELoadBlock::Beam, 2});      // intensity, length of each sloping end part
    set(ELoadType::NodeForceMoments, {ELoadBlock::Nodal, 3});  // vertical force, moments about x and y
    set(ELoadType::NodeForces, {ELoadBlock::Nodal, 3});        // vertical force, horizontal forces along x and y
    set(ELoadType::WallForce, {ELoadBlock::Nodal, 2});         // force, its distance from the first row's first node
    set(ELoadType::WallLine, {ELoadBlock::Pressure, 1});       // intensity along the wall
    set(ELoadType::Unused31, {ELoadBlock::None, 0});
    return table;
}

inline constexpr std::array<CLoadTraits, kTypes> kTable = Table();

}  // namespace loadTraits

constexpr CLoadTraits TraitsOf(ELoadType type) noexcept
{
    const auto index = static_cast<std::uint32_t>(type);
    return index < loadTraits::kTypes ? loadTraits::kTable[index] : CLoadTraits();
}

/// One line of the load file: up to ten numbers, the first (a running number) and the last two unused. Columns that the
/// line does not have, and values that the type does not use, are 0.
struct T_SATWE_STLD_D {
    std::int32_t storyId = 0;       // number of the load file's block, counted from 1: the key of the story
    std::int32_t memberId = 0;      // column 1: node number, or key of a beam or wall within the story
    ELoadType loadType{};           // column 2
    std::int32_t loadCase = 0;      // column 3: 0 dead load, 1 (for anything else) live load
    std::array<double, 4> value{};  // columns 4 to 7, meaning by type; positive downward, in the file's units
    std::int32_t line = 0;          // where it stands in the load file
};

}  // namespace satwecvt
