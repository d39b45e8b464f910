// A finding about an object of one story, for the sentences that are made of it.
#pragma once

#include "satwecvt/Finding.h"

#include <array>

namespace satwecvt {

/// About the object with the key 5 of the story with the key 8, whose number is 80.
inline CFinding FindingOfStory(EFinding code, EObject object, std::array<double, 4> values = {})
{
    CFinding finding = MakeFinding(code, {});
    finding.object = object;
    finding.story = 8;
    finding.storyNo = 80;
    finding.key = 5;
    finding.values = values;
    finding.quote = code == EFinding::EndsEarly ? "" : "6O";
    return finding;
}

}  // namespace satwecvt
