// The two files of the sample tower: the structure file and the load file. Lengths are in mm, forces in N.
//
// From three stories up every kind of section, release and load occurs. The top story holds the one leaning wall, whose
// shape a conversion cannot keep. The same tower always gives the same bytes.
#pragma once

#include "Tower.h"

#include <cstdint>
#include <string>

namespace satwecvt {

/// How many lines the structure file of the tower has.
std::int64_t StructureLines(const CTower& tower);

/// How many lines the load file of the tower has.
std::int64_t LoadLines(const CTower& tower);

/// Writes the structure file. A file that is there is replaced. Throws std::runtime_error with the path when the file
/// cannot be written, and std::logic_error when it does not have `StructureLines` lines.
void WriteStructureFile(const std::string& path, const CTower& tower);

/// Writes the load file. Fails like `WriteStructureFile`; the number of its lines is `LoadLines`.
void WriteLoadFile(const std::string& path, const CTower& tower);

}  // namespace satwecvt
