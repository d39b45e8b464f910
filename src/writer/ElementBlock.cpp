#include "writer/ElementBlock.h"

#include "text/WriteLine.h"
#include "writer/FrameElements.h"
#include "writer/PlateElements.h"
#include "writer/PromisedRecords.h"
#include "writer/WallElements.h"

namespace satwecvt {

void WriteElements(CElementOutput& output)
{
    const CSatweModel& model = output.model;
    std::int64_t total = 0;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        total += std::int64_t{story.beamCount} + story.columnCount + story.braceCount;
        total += std::int64_t{story.wallCount} + story.plateCount;
    }
    if (total == 0) {
        return;
    }
    output.elementsWritten = 1;
    WriteLine(output.modelFile,
              "*ELEMENT    ; Elements\n"
              "; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame  Element\n"
              "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n"
              "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n"
              "; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. Point)\n");
    CPlateElements plates(output);
    const CPromisedRecords stories(model.stories, EObject::Story, nullptr);
    for (std::int32_t s = 0; s < model.storyCount; ++s) {
        const T_SATWE_STIF_D& story = stories[s];
        WriteBeams(output, story);
        WriteColumns(output, story);
        WriteBraces(output, story);
        WriteWalls(output, story);
        plates.Write(story);
        ++output.counts.stories;
    }
    WriteLine(output.modelFile, "\n");
}

}  // namespace satwecvt
