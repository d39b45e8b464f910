// Where what was left out would be: walls, slabs and their triangles, line loads on lost walls, and what is cut off, or
// lost with one end, of the load of a beam or wall. A place needs nodes that are in the model. All else, such as an
// opening or a load of a type that is not converted, is told by its finding alone.
#pragma once

#include "model/SatweModel.h"
#include "modelfile/ModelFile.h"
#include "picture/Picture.h"
#include "satwecvt/Finding.h"

#include <span>
#include <vector>

namespace satwecvt {

struct CLostParts {
    std::vector<CLostShape> shapes;
    std::vector<CLostLoad> loads;
};

/// In the order of the findings, by whose indexes they are named.
CLostParts LostParts(const CSatweModel& input, const CModelFile& model, std::span<const CFinding> findings);

}  // namespace satwecvt
