#include "check/NodesByNumber.h"

namespace satwecvt {

CNodesByNumber::CNodesByNumber(const CModelFile& modelFile)
{
    nodes.Reserve(modelFile.nodes.size());
    for (const CNode& node : modelFile.nodes) {
        nodes.Insert(node.number, &node);
    }
    nodes.SortByKey();
}

}  // namespace satwecvt
