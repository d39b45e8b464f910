// Where what was left out would be: walls, triangles of slabs, and loads. A place needs nodes that are in the model;
// what has none, such as a load on a beam that does not exist, is told by its finding alone.
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
