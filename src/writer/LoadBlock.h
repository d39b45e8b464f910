// What the three load blocks of a load case share: the loads that they take, in the order of the load file, a header
// that stands before the first line and nowhere without one, and an empty line at the end.
#pragma once

#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"
#include "text/WriteLine.h"
#include "writer/LoadCase.h"
#include "writer/LostWalls.h"
#include "writer/WrittenNodes.h"

namespace satwecvt {

struct CLoadOutput {
    COutputFile& modelFile;
    CFindingListener& findings;
    const CSatweModel& model;
    const CWrittenNodes& writtenNodes;
    const CLostWalls& lostWalls;
    CWrittenCounts& counts;
};

class CLoadBlock {
public:
    using CWriteHeader = void (*)(COutputFile& modelFile);

    CLoadBlock(CLoadOutput& loadOutput, CWriteHeader headerWriter) : output(loadOutput), writeHeader(headerWriter) {}

    /// Calls `writeLoad` with every load of the case whose block `isTaken` takes, and closes the block.
    template <class IsTaken, class WriteLoad>
    void Write(ELoadCase loadCase, IsTaken isTaken, WriteLoad writeLoad)
    {
        output.model.loads.Visit(
            [&](ELoadType type, std::int32_t caseOfLoad) {
                return BelongsTo(loadCase, caseOfLoad) && isTaken(TraitsOf(type).block);
            },
            writeLoad);
        WriteLine(output.modelFile, "\n");
    }

    /// Writes the header, unless it stands there already.
    void NeedHeader()
    {
        if (!headerWritten) {
            writeHeader(output.modelFile);
            headerWritten = true;
        }
    }

private:
    CLoadOutput& output;
    CWriteHeader writeHeader;
    bool headerWritten = false;
};

}  // namespace satwecvt
