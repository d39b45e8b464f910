// The node and member blocks of a story in the structure file, in the order in which they stand there. Each starts with
// a comment line, and its keys start at 1. Every block has its own source file, such as BeamBlock.cpp.
//
// Failures are those of CLineWriter.
#pragma once

#include "LineWriter.h"
#include "Tower.h"

#include <cstdint>

namespace satwecvt {

/// Writes the grid nodes of a level, without a comment line. Those of level 0 are the supports.
void WriteGridNodes(CLineWriter& file, const CTower& tower, std::int64_t level);

/// Writes `CTower::Nodes` nodes, one line each: grid nodes, middle nodes, centre nodes, nodes of split columns.
void WriteNodes(CLineWriter& file, const CTower& tower, std::int64_t story);

/// Writes `CTower::Beams` beams: along x, along y, secondary. `CTower::OffsetBeams` of them have a second line, which
/// holds the end offsets.
void WriteBeams(CLineWriter& file, const CTower& tower, std::int64_t story);

/// Writes `CTower::Columns` columns. `CTower::SplitColumns` of them have a second line, which names the split node.
void WriteColumns(CLineWriter& file, const CTower& tower, std::int64_t story);

/// Writes `CTower::Braces` braces, one line each: the crossed diagonals of the braced bays.
void WriteBraces(CLineWriter& file, const CTower& tower, std::int64_t story);

/// Writes `CTower::Walls` walls in `CTower::WallLines` lines: four around each core. The top story has a leaning wall
/// behind them.
void WriteWalls(CLineWriter& file, const CTower& tower, std::int64_t story);

/// Writes `CTower::Slabs` slabs bay by bay. `CTower::LongSlabs` of them take two lines.
void WriteSlabs(CLineWriter& file, const CTower& tower, std::int64_t story);

}  // namespace satwecvt
