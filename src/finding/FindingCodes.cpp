// The words and the severities of the codes, in the order of the enumeration.

#include "satwecvt/Finding.h"

#include <cstddef>
#include <iterator>

namespace satwecvt {

namespace {

struct CCode {
    EFinding code;
    std::string_view name;
    ESeverity severity;
};

constexpr CCode kCodes[] = {
    {EFinding::ByteOrderMark, "byte-order-mark", ESeverity::Doubt},
    {EFinding::Utf16, "utf-16", ESeverity::Doubt},
    {EFinding::NoLineEnd, "no-line-end", ESeverity::Doubt},
    {EFinding::EndMark, "end-mark", ESeverity::Doubt},
    {EFinding::NulByte, "nul-byte", ESeverity::Doubt},
    {EFinding::LongLine, "long-line", ESeverity::Doubt},
    {EFinding::RestNotRead, "rest-not-read", ESeverity::Doubt},
    {EFinding::SameFile, "same-file", ESeverity::Doubt},
    {EFinding::FilesSwapped, "files-swapped", ESeverity::Doubt},
    {EFinding::EndsEarly, "ends-early", ESeverity::Loss},
    {EFinding::NotANumber, "not-a-number", ESeverity::Doubt},
    {EFinding::FusedNumbers, "fused-numbers", ESeverity::Doubt},
    {EFinding::NumberOutOfRange, "number-out-of-range", ESeverity::Doubt},
    {EFinding::StoryKey, "story-key", ESeverity::Doubt},
    {EFinding::NodeNumberTwice, "node-number-twice", ESeverity::Doubt},
    {EFinding::NodeMissing, "node-missing", ESeverity::Doubt},
    {EFinding::NodeUnused, "node-unused", ESeverity::Note},
    {EFinding::SectionNumberTwice, "section-number-twice", ESeverity::Doubt},
    {EFinding::SectionMissing, "section-missing", ESeverity::Doubt},
    {EFinding::SectionKind, "section-kind", ESeverity::Doubt},
    {EFinding::GradeUnknown, "grade-unknown", ESeverity::Doubt},
    {EFinding::ThicknessZero, "thickness-zero", ESeverity::Doubt},
    {EFinding::ZeroLength, "zero-length", ESeverity::Doubt},
    {EFinding::SameNodes, "same-nodes", ESeverity::Doubt},
    {EFinding::NodesCoincide, "nodes-coincide", ESeverity::Doubt},
    {EFinding::NodeOnMember, "node-on-member", ESeverity::Doubt},
    {EFinding::BeamsCross, "beams-cross", ESeverity::Doubt},
    {EFinding::MembersOverlap, "members-overlap", ESeverity::Doubt},
    {EFinding::NotSupported, "not-supported", ESeverity::Doubt},
    {EFinding::LookIncomplete, "look-incomplete", ESeverity::Note},
    {EFinding::WallCornerMissing, "wall-corner-missing", ESeverity::Loss},
    {EFinding::WallNotUpright, "wall-not-upright", ESeverity::Loss},
    {EFinding::WallOpening, "wall-opening", ESeverity::Loss},
    {EFinding::PlateCornerMissing, "plate-corner-missing", ESeverity::Loss},
    {EFinding::PlateTooFewCorners, "plate-too-few-corners", ESeverity::Loss},
    {EFinding::FlatTriangle, "flat-triangle", ESeverity::Note},
    {EFinding::LoadType, "load-type", ESeverity::Loss},
    {EFinding::LoadStoryMissing, "load-story-missing", ESeverity::Loss},
    {EFinding::LoadBeamMissing, "load-beam-missing", ESeverity::Loss},
    {EFinding::LoadWallMissing, "load-wall-missing", ESeverity::Loss},
    {EFinding::LoadNodeMissing, "load-node-missing", ESeverity::Loss},  // a doubt where the load is written
    {EFinding::LoadOnLostWall, "load-on-lost-wall", ESeverity::Loss},
    {EFinding::LoadCut, "load-cut", ESeverity::Loss},
    {EFinding::LoadMoved, "load-moved", ESeverity::Doubt},
    {EFinding::LoadBeyondEnd, "load-beyond-end", ESeverity::Doubt},
    {EFinding::LoadBeforeStart, "load-before-start", ESeverity::Doubt},
    {EFinding::TrapezoidAsTriangle, "trapezoid-as-triangle", ESeverity::Doubt},
    {EFinding::ZeroLoad, "zero-load", ESeverity::Note},
    {EFinding::StoryWithoutLoad, "story-without-load", ESeverity::Note},
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
