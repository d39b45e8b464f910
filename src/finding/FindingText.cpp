// The sentences, one line for each code, as plain as a label on a drawing.

#include "satwecvt/Finding.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace satwecvt {

namespace {

struct CCodeName {
    EFinding code;
    std::string_view name;
};

constexpr CCodeName kCodeNames[] = {
    {EFinding::EndsEarly, "ends-early"},
    {EFinding::WallCornerMissing, "wall-corner-missing"},
    {EFinding::WallNotUpright, "wall-not-upright"},
    {EFinding::WallOpening, "wall-opening"},
    {EFinding::PlateCornerMissing, "plate-corner-missing"},
    {EFinding::FlatTriangle, "flat-triangle"},
    {EFinding::LoadType, "load-type"},
    {EFinding::LoadStoryMissing, "load-story-missing"},
    {EFinding::LoadBeamMissing, "load-beam-missing"},
    {EFinding::LoadWallMissing, "load-wall-missing"},
    {EFinding::LoadNodeMissing, "load-node-missing"},
    {EFinding::LoadOnLostWall, "load-on-lost-wall"},
    {EFinding::LoadCut, "load-cut"},
    {EFinding::ZeroLoad, "zero-load"},
};

constexpr std::string_view kObjectNames[] = {"",      "beam", "column",  "brace", "wall",
                                             "plate", "node", "section", "story", "load"};

/// A number with at most six digits, whatever the locale.
std::string Number(double value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 6).ptr;
    return {text.data(), end};
}

std::string Whole(double value)
{
    return std::to_string(std::llround(value));
}

/// "wall 5 of story 8"; "object 5 of story 8" where only the type of a load would say what it is.
std::string NameOf(const CFinding& finding)
{
    std::string name(finding.object == EObject::Load ? "object" : ObjectName(finding.object));
    if (finding.key) {
        name += " " + std::to_string(*finding.key);
    }
    if (finding.story) {
        name += " of story " + std::to_string(*finding.story);
    }
    return name;
}

/// "the file ends in block 2 of 8: 90 loads read, 361 announced in the blocks that were read".
std::string EndsEarlyText(const CFinding& finding)
{
    const auto& [block, blocks, read, announced] = finding.values;
    std::string text =
        finding.quote.empty() ? "the file ends" : "the system refuses to read on (" + finding.quote + ")";
    text += " in block " + Whole(block) + " of " + Whole(blocks) + ": " + Whole(read);
    return text + " loads read, " + Whole(announced) + " announced in the blocks that were read";
}

/// "its ends do not stand upright, 120 apart in x and 30 in y".
std::string LeaningText(double dx, double dy)
{
    std::string text = "its ends do not stand upright, ";
    if (dx == 0.0) {
        return text + Number(dy) + " apart in y";
    }
    text += Number(dx) + " apart in x";
    return dy == 0.0 ? text : text + " and " + Number(dy) + " in y";
}

std::string CutText(double missing)
{
    const std::string force = "a force of " + Number(std::abs(missing)) + " is ";
    return force + (missing < 0.0 ? "added" : "missing");
}

}  // namespace

std::string_view CodeName(EFinding code) noexcept
{
    for (const CCodeName& entry : kCodeNames) {
        if (entry.code == code) {
            return entry.name;
        }
    }
    return "";
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

std::string FindingText(const CFinding& finding)
{
    const std::string name = NameOf(finding);
    const std::string number = Whole(finding.values[0]);
    switch (finding.code) {
    case EFinding::EndsEarly:
        return EndsEarlyText(finding);
    case EFinding::WallCornerMissing:
        return name + " is left out: its corner node " + number + " is not in the model";
    case EFinding::WallNotUpright:
        return name + " is left out: " + LeaningText(finding.values[0], finding.values[1]);
    case EFinding::WallOpening:
        return name + " is written without its opening";
    case EFinding::PlateCornerMissing:
        return Whole(finding.values[1]) + " of the " + Whole(finding.values[2]) + " triangles of " + name +
               " are left out: node " + number + " is not in the model";
    case EFinding::FlatTriangle:
        return "triangle " + number + " of " + name + " is left out: it has no area";
    case EFinding::LoadType:
        return "a load of type " + number + " on " + name + " is left out: its type is not converted";
    case EFinding::LoadStoryMissing:
        return "a load on " + name + " is left out: there is no such story";
    case EFinding::LoadBeamMissing:
    case EFinding::LoadWallMissing:
        return "a load on " + name + " is left out: the story has no such " + std::string(ObjectName(finding.object));
    case EFinding::LoadNodeMissing:
        return "a load on " + name + " is left out: its node " + number + " is not in the model";
    case EFinding::LoadOnLostWall:
        return "a line load on " + name + " names an element that is not in the model: the wall was left out";
    case EFinding::LoadCut:
        return "a load on " + name + " reaches beyond end j and is cut there: " + CutText(finding.values[0]);
    case EFinding::ZeroLoad:
        return "a load on " + name + " is left out: its intensity is 0";
    }
    return "";
}

}  // namespace satwecvt
