// The parts of a picture as columns.
#pragma once

#include "picture/ColumnBytes.h"
#include "picture/Picture.h"

namespace satwecvt {

/// Stories, nodes, frame elements and planar elements, each with its origin.
void AddElements(CColumnBytes& columns, const CPicture& picture);

/// Materials, sections, thicknesses, supports, hinges and end offsets.
void AddProperties(CColumnBytes& columns, const CModelFile& model);

/// The loads of both cases, those that both have once, and the balance.
void AddLoads(CColumnBytes& columns, const CPictureSource& source);

/// The findings that are listed, and what was lost by them.
void AddFindings(CColumnBytes& columns, const CPicture& picture);

}  // namespace satwecvt
