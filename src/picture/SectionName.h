// What a section is called beside its member.
#pragma once

#include "modelfile/ModelFile.h"

#include <string>

namespace satwecvt {

/// Width and height of a rectangle, "300x600"; the letters of a steel shape and its dimensions, "H400x200x8x13"; else
/// the name that the section has in the model, "Sec3".
std::string SectionName(const CSection& section);

}  // namespace satwecvt
