#include "writer/NodeBlock.h"

#include "text/WriteLine.h"
#include "writer/PromisedRecords.h"

namespace satwecvt {

void WriteNodes(COutputFile& modelFile, const CSatweModel& model, CWrittenNodes& writtenNodes, CWrittenCounts& counts)
{
    std::int64_t total = model.nodeCount;
    std::size_t stored = model.nodes.Count();
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        total += story.nodeCount;
        stored += story.nodes.Count();
    }
    if (total == 0) {
        return;
    }
    writtenNodes.Reserve(stored);
    const auto writeTable = [&](const CRecordTable<T_SATWE_STND_D>& nodes, std::int32_t count,
                                const T_SATWE_STIF_D* story) {
        const CPromisedRecords promised(nodes, EObject::Node, story);
        for (std::int32_t i = 0; i < count; ++i) {
            const T_SATWE_STND_D& node = promised[i];
            WriteLine(modelFile, "  %d, %g, %g, %g\n", node.number, node.x, node.y, node.z);
            writtenNodes.Add(node);
            ++counts.nodes;
        }
    };
    WriteLine(modelFile, "*NODE    ; Nodes\n");
    WriteLine(modelFile, "; iNO, X, Y, Z\n");
    writeTable(model.nodes, model.nodeCount, nullptr);
    const CPromisedRecords stories(model.stories, EObject::Story, nullptr);
    for (std::int32_t s = 0; s < model.storyCount; ++s) {
        const T_SATWE_STIF_D& story = stories[s];
        writeTable(story.nodes, story.nodeCount, &story);
    }
    writtenNodes.Complete();
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
