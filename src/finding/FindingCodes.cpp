// The words and the severities of the codes, in the order of the enumeration.

#include "satwecvt/Finding.h"

#include <cstddef>
#include <iterator>

namespace satwecvt {

namespace {

struct CCode {
    std::string_view name;
    EFinding code;
    ESeverity severity;
};

constexpr CCode kCodes[] = {
    {"byte-order-mark", EFinding::ByteOrderMark, ESeverity::Doubt},
    {"utf-16", EFinding::Utf16, ESeverity::Doubt},
    {"no-line-end", EFinding::NoLineEnd, ESeverity::Doubt},
    {"end-mark", EFinding::EndMark, ESeverity::Doubt},
    {"nul-byte", EFinding::NulByte, ESeverity::Doubt},
    {"long-line", EFinding::LongLine, ESeverity::Doubt},
    {"rest-not-read", EFinding::RestNotRead, ESeverity::Doubt},
    {"same-file", EFinding::SameFile, ESeverity::Doubt},
    {"files-swapped", EFinding::FilesSwapped, ESeverity::Doubt},
    {"ends-early", EFinding::EndsEarly, ESeverity::Loss},
    {"not-a-number", EFinding::NotANumber, ESeverity::Doubt},
    {"fused-numbers", EFinding::FusedNumbers, ESeverity::Doubt},
    {"number-out-of-range", EFinding::NumberOutOfRange, ESeverity::Doubt},
    {"story-key", EFinding::StoryKey, ESeverity::Doubt},
    {"node-number-twice", EFinding::NodeNumberTwice, ESeverity::Doubt},
    {"node-missing", EFinding::NodeMissing, ESeverity::Doubt},
    {"node-unused", EFinding::NodeUnused, ESeverity::Note},
    {"section-number-twice", EFinding::SectionNumberTwice, ESeverity::Doubt},
    {"section-missing", EFinding::SectionMissing, ESeverity::Doubt},
    {"section-kind", EFinding::SectionKind, ESeverity::Doubt},
    {"grade-unknown", EFinding::GradeUnknown, ESeverity::Doubt},
    {"thickness-zero", EFinding::ThicknessZero, ESeverity::Doubt},
    {"zero-length", EFinding::ZeroLength, ESeverity::Doubt},
    {"same-nodes", EFinding::SameNodes, ESeverity::Doubt},
    {"nodes-coincide", EFinding::NodesCoincide, ESeverity::Doubt},
    {"node-on-member", EFinding::NodeOnMember, ESeverity::Doubt},
    {"beams-cross", EFinding::BeamsCross, ESeverity::Doubt},
    {"members-overlap", EFinding::MembersOverlap, ESeverity::Doubt},
    {"not-supported", EFinding::NotSupported, ESeverity::Doubt},
    {"look-incomplete", EFinding::LookIncomplete, ESeverity::Note},
    {"wall-corner-missing", EFinding::WallCornerMissing, ESeverity::Loss},
    {"wall-not-upright", EFinding::WallNotUpright, ESeverity::Loss},
    {"wall-opening", EFinding::WallOpening, ESeverity::Loss},
    {"plate-corner-missing", EFinding::PlateCornerMissing, ESeverity::Loss},
    {"plate-too-few-corners", EFinding::PlateTooFewCorners, ESeverity::Loss},
    {"flat-triangle", EFinding::FlatTriangle, ESeverity::Note},
    {"load-type", EFinding::LoadType, ESeverity::Loss},
    {"load-story-missing", EFinding::LoadStoryMissing, ESeverity::Loss},
    {"load-beam-missing", EFinding::LoadBeamMissing, ESeverity::Loss},
    {"load-wall-missing", EFinding::LoadWallMissing, ESeverity::Loss},
    {"load-node-missing", EFinding::LoadNodeMissing, ESeverity::Loss},  // a doubt where the load is written
    {"load-on-lost-wall", EFinding::LoadOnLostWall, ESeverity::Loss},
    {"load-cut", EFinding::LoadCut, ESeverity::Loss},
    {"load-moved", EFinding::LoadMoved, ESeverity::Doubt},
    {"load-beyond-end", EFinding::LoadBeyondEnd, ESeverity::Doubt},
    {"load-before-start", EFinding::LoadBeforeStart, ESeverity::Doubt},
    {"trapezoid-as-triangle", EFinding::TrapezoidAsTriangle, ESeverity::Doubt},
    {"zero-load", EFinding::ZeroLoad, ESeverity::Note},
    {"story-without-load", EFinding::StoryWithoutLoad, ESeverity::Note},
};

consteval bool StandInOrder()
{
    for (std::size_t i = 0; i < std::size(kCodes); ++i) {
        if (static_cast<std::size_t>(kCodes[i].code) != i) {
            return false;
        }
    }
    return std::size(kCodes) == kFindingCodes;
}
static_assert(StandInOrder());

const CCode& RowOf(EFinding code) noexcept
{
    return kCodes[static_cast<std::size_t>(code)];
}

constexpr std::string_view kObjectNames[] = {"",      "beam", "column",  "brace", "wall",
                                             "plate", "node", "section", "story", "load"};

}  // namespace

CFinding MakeFinding(EFinding code, const CPlace& place)
{
    CFinding finding;
    finding.code = code;
    finding.severity = RowOf(code).severity;
    finding.place = place;
    return finding;
}

std::string_view CodeName(EFinding code) noexcept
{
    return RowOf(code).name;
}

std::string_view SeverityName(ESeverity severity) noexcept
{
    switch (severity) {
    case ESeverity::Loss:
        return "loss";
    case ESeverity::Doubt:
        return "doubt";
    default:
        return "note";
    }
}

std::string_view ObjectName(EObject object) noexcept
{
    return kObjectNames[static_cast<std::size_t>(object)];
}

}  // namespace satwecvt
