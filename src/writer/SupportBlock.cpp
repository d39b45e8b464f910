#include "writer/SupportBlock.h"

#include "finding/InvalidArgument.h"
#include "text/WriteLine.h"

#include <algorithm>
#include <vector>

namespace satwecvt {

void WriteSupports(COutputFile& modelFile, const CSatweModel& model, CWrittenCounts& counts)
{
    if (model.nodeCount == 0) {
        return;
    }
    WriteLine(modelFile,
              "*CONSTRAINT    ; Supports\n"
              "; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n");
    // As many lines as the header announces: where it announces more than there are, the missing keys count as 0, and a
    // key without a node repeats the node of the line before.
    std::vector<std::int32_t> keys = model.nodes.Keys();
    if (static_cast<std::int64_t>(keys.size()) > model.nodeCount) {
        throw CInvalidArgument({ESource::StructureFile, 0}, "more model-level nodes than announced");
    }
    keys.resize(static_cast<std::size_t>(model.nodeCount));
    std::sort(keys.begin(), keys.end());
    T_SATWE_STND_D node;
    for (const std::int32_t key : keys) {
        if (const T_SATWE_STND_D* found = model.nodes.Find(key)) {
            node = *found;
        }
        WriteLine(modelFile, "  %d, %s\n", node.number, "111111");
        ++counts.supports;
    }
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
