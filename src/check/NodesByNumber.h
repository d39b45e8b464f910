// The nodes of a model text file by their numbers. Where a number occurs twice, the later node is meant by it.
#pragma once

#include "model/RecordTable.h"
#include "modelfile/ModelFile.h"

#include <cstdint>

namespace satwecvt {

class CNodesByNumber {
public:
    /// The file has to outlive it, and to stay as it is.
    explicit CNodesByNumber(const CModelFile& modelFile);

    /// The node with a number; null when the file does not have it.
    const CNode* Find(std::int32_t number) const noexcept
    {
        const CNode* const* const node = nodes.Find(number);
        return node == nullptr ? nullptr : *node;
    }

private:
    CRecordTable<const CNode*> nodes;
};

}  // namespace satwecvt
