#include "writer/PromisedRecords.h"

#include <string>

namespace satwecvt {

CInvalidArgument TooFewRecords(EObject object, const T_SATWE_STIF_D* story, const CKeyTwice* twice)
{
    const std::string name(ObjectName(object));
    const std::string owner = story != nullptr ? " of story " + std::to_string(story->key) : "";
    if (twice == nullptr) {
        return {{ESource::StructureFile, 0},
                "a count promises more records of the kind " + name + owner + " than there are"};
    }
    return {{ESource::StructureFile, twice->line},
            name + " " + std::to_string(twice->key) + owner + " stands here and in line " +
                std::to_string(twice->replacedLine) + ": a key may stand once"};
}

}  // namespace satwecvt
