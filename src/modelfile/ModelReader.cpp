#include "modelfile/ModelReader.h"

#include "modelfile/ModelBlock.h"
#include "modelfile/ModelText.h"

namespace satwecvt {

CModelFile ReadModelFile(std::string_view text)
{
    CModelText lines(text);
    CModelFile model;
    lines.Expect("*VERSION");
    lines.Expect("  5.8.0");
    lines.Expect("");
    ReadNodes(lines, model);
    ReadElements(lines, model);
    ReadMaterials(lines, model);
    ReadSections(lines, model);
    ReadThicknesses(lines, model);
    ReadSupports(lines, model);
    ReadReleases(lines, model);
    ReadOffsets(lines, model);
    ReadLoadCases(lines, model);
    ReadLoads(lines, model);
    return model;
}

}  // namespace satwecvt
