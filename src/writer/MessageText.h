#pragma once

#include "satwecvt/Finding.h"
#include "text/WriteLine.h"

namespace satwecvt {

/// Writes the message log's line of a finding; returns false for a finding that the log does not tell. Every finding of
/// these codes names its object, and its story as the log needs it.
template <class Target>
bool WriteMessage(Target& target, const CFinding& finding)
{
    const std::int32_t key = finding.key.value_or(0);
    const std::int32_t storyNo = finding.storyNo.value_or(0);
    switch (finding.code) {
    case EFinding::WallCornerMissing:
    case EFinding::WallNotUpright:
        WriteLine(target, "The wall(story id:%d,wall id:%d) has invalid shape\n", storyNo, key);
        return true;
    case EFinding::WallOpening:
        WriteLine(target, "Opening of the wall(story id:%d,wall id:%d) is not converted\n", storyNo, key);
        return true;
    case EFinding::PlateCornerMissing:
        WriteLine(target, "The plate(story id:%d,plate id:%d) has invalid shape\n", storyNo, key);
        return true;
    case EFinding::ZeroLoad:
        WriteLine(target, "Beam load value '0'(story id:%d,beam id:%d) is not converted\n", finding.story.value_or(0),
                  key);
        return true;
    default:
        return false;
    }
}

}  // namespace satwecvt
