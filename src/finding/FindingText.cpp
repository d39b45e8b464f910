// The sentences, one line for each code, as plain as a label on a drawing.

#include "doubles/CharConversion.h"
#include "finding/Quoted.h"
#include "satwecvt/Finding.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace satwecvt {

namespace {

/// A number with at most six digits, whatever the locale.
std::string Number(double value)
{
    if (std::isnan(value)) {
        return "nan";  // whose sign belongs to the processor
    }
    std::array<char, 32> text{};
    const auto end = ToChars(text.data(), text.data() + text.size(), value, 6).ptr;
    return {text.data(), end};
}

std::string Whole(double value)
{
    return std::to_string(std::llround(value));
}

/// "wall 5 of story 8"; "object 5 of story 8" where only the type of a load would say what it is.
std::string NameOf(const CFinding& finding)
{
    if (finding.object == EObject::Story) {
        return "story " + std::to_string(finding.story.value_or(0));
    }
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
/// "1 data line", "12 data lines".
std::string CountOf(double count, const std::string& noun)
{
    return Whole(count) + " " + noun + (count == 1.0 ? "" : "s");
}

std::string EndsEarlyText(const CFinding& finding)
{
    const auto& [block, blocks, read, announced] = finding.values;
    std::string text =
        finding.quote.empty() ? "the file ends" : "the system refuses to read on (" + finding.quote + ")";
    text += " in block " + Whole(block) + " of " + Whole(blocks) + ": " + CountOf(read, "load");
    return text + " read, " + Whole(announced) + " announced in the blocks that were read";
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

/// A number with all its digits: the reader's limits have ten.
std::string Exact(double value)
{
    if (std::isnan(value)) {
        return "nan";
    }
    std::array<char, 32> text{};
    return {text.data(), ToChars(text.data(), text.data() + text.size(), value).ptr};
}

/// `"6O00" is read as 6`.
std::string ReadAsText(const CFinding& finding)
{
    return (finding.quote.empty() ? "an empty field" : Quoted(finding.quote)) + " is read as " +
           Exact(finding.values[0]);
}

std::string NulByteText(double lines)
{
    return "a NUL byte ends the text of this line" +
           (lines > 1.0 ? ", and of " + CountOf(lines - 1.0, "other line") : std::string());
}

std::string GradeText(const CFinding& finding, const std::string& name)
{
    const auto& [grade, members, isConcrete, unused] = finding.values;
    if (isConcrete != 0.0) {
        return "the concrete grade " + Whole(grade) + " of " + CountOf(members, "composite member") + " of " + name +
               " has no stiffness ratio: that of C30 is taken";
    }
    return "the steel grade " + Whole(grade) + " of " + CountOf(members, "member") + " of " + name +
           " is unknown: Grade3 is taken";
}

std::string NotSupportedText(const std::string& name, double elements)
{
    if (elements > 1.0) {
        return name + " and " + CountOf(elements - 1.0, "element") + " joined to it have no path to a support";
    }
    return name + " has no path to a support";
}

/// Of a file and its lines.
std::string TextOfFile(const CFinding& finding)
{
    const bool isLoadFile = finding.place.source == ESource::LoadFile;
    switch (finding.code) {
    case EFinding::ByteOrderMark:
        return "the file starts with a byte order mark (EF BB BF), which is read as a part of its first line";
    case EFinding::Utf16:
        return "the file is UTF-16 text, whose numbers cannot be read: save it as plain text";
    case EFinding::NoLineEnd:
        return "the last line has no line end and lost its last character for it, " + Quoted(finding.quote);
    case EFinding::EndMark:
        return "a byte 1A ends the file here: " + CountOf(finding.values[0], "byte") + " behind it" +
               (finding.values[0] == 1.0 ? " is" : " are") + " not read";
    case EFinding::NulByte:
        return NulByteText(finding.values[0]);
    case EFinding::LongLine:
        return "the line has more than 499 characters and is read in pieces, each as a line";
    case EFinding::RestNotRead:
        return CountOf(finding.values[0], "data line") + " behind the last " + (isLoadFile ? "block" : "story") +
               (finding.values[0] == 1.0 ? " is" : " are") + " not read";
    case EFinding::SameFile:
        return "the structure file and the load file are one file";
    case EFinding::FilesSwapped:
        return "this looks like a load file, and the load file like a structure file: are they swapped?";
    case EFinding::EndsEarly:
        return EndsEarlyText(finding);
    case EFinding::FusedNumbers:
        return ReadAsText(finding) + ": in a line with a comma, blanks do not separate numbers";
    case EFinding::NumberOutOfRange:
        return ReadAsText(finding) +
               (std::isfinite(finding.values[0]) ? ": it is no integer of 32 bits" : ": it is not a finite number");
    default:
        return ReadAsText(finding);
    }
}

/// Of the model that was read.
std::string TextOfModel(const CFinding& finding)
{
    const std::string name = NameOf(finding);
    const std::string number = Whole(finding.values[0]);
    const bool isPlanar = finding.object == EObject::Wall || finding.object == EObject::Plate;
    switch (finding.code) {
    case EFinding::StoryKey:
        return name + ": its key is not one of 1 to " + number + ", so no block of the load file belongs to it";
    case EFinding::NodeNumberTwice:
        return name + " has the number of a later node, in line " + number + ": walls, slabs and loads mean that one";
    case EFinding::NodeMissing:
        return name + " names node " + number + ", which is not in the model";
    case EFinding::NodeUnused:
        return CountOf(finding.values[0], "node") + " of " + (finding.story ? name : "the model level") +
               (finding.values[0] == 1.0 ? " belongs" : " belong") + " to no element";
    case EFinding::SectionNumberTwice:
        return name + " has the number of a later section, in line " + number + ": members mean that one";
    case EFinding::SectionMissing:
        return name + " names section " + number + ", which is not defined";
    case EFinding::SectionKind:
        return name + " is of kind " + number +
               ", which has no lines in the model: " + CountOf(finding.values[1], "member") + " without a section";
    case EFinding::GradeUnknown:
        return GradeText(finding, name);
    case EFinding::ThicknessZero:
        return name + " has the thickness " + Number(finding.values[0]);
    case EFinding::ZeroLength:
        return name + (isPlanar ? " has an edge without length: two of its corners are at one place"
                                : " has no length: its ends are at one place");
    case EFinding::SameNodes:
        return name + " has the same nodes as element " + number;
    case EFinding::NodesCoincide:
        return name + " is at the place of node " + number + ": what meets there is not joined";
    case EFinding::NodeOnMember:
        return "node " + number + " lies on " + name + " and is not its end";
    case EFinding::BeamsCross:
        return name + " crosses element " + number + " without a common node";
    case EFinding::MembersOverlap:
        return name + " and element " + number + " overlap";
    case EFinding::NotSupported:
        return NotSupportedText(name, finding.values[0]);
    default:
        return name + ": so many members lie close together that not every pair was looked at";
    }
}

/// Of members that lose something by the writing.
std::string TextOfMember(const CFinding& finding)
{
    const std::string name = NameOf(finding);
    const std::string number = Whole(finding.values[0]);
    switch (finding.code) {
    case EFinding::WallCornerMissing:
        return name + " is left out: its corner node " + number + " is not in the model";
    case EFinding::WallNotUpright:
        return name + " is left out: " + LeaningText(finding.values[0], finding.values[1]);
    case EFinding::WallOpening:
        return name + " is written without its opening";
    case EFinding::PlateCornerMissing:
        return Whole(finding.values[1]) + " of the " + Whole(finding.values[2]) + " triangles of " + name +
               " are left out: node " + number + " is not in the model";
    case EFinding::PlateTooFewCorners:
        return name + " is left out: it has " + CountOf(finding.values[0], "corner");
    default:
        return "triangle " + number + " of " + name + " is left out: it has no area";
    }
}

std::string TextOfLoad(const CFinding& finding)
{
    const std::string load = "a load on " + NameOf(finding);
    const std::string number = Whole(finding.values[0]);
    switch (finding.code) {
    case EFinding::LoadType:
        return "a load of type " + number + " on " + NameOf(finding) + " is left out: the type is not converted";
    case EFinding::LoadStoryMissing:
        return load + " is left out: there is no such story";
    case EFinding::LoadBeamMissing:
    case EFinding::LoadWallMissing:
        return load + " is left out: the story has no such " + std::string(ObjectName(finding.object));
    case EFinding::LoadNodeMissing:
        return finding.severity == ESeverity::Loss ? load + " is left out: node " + number + " is not in the model"
                                                   : "a load names node " + number + ", which is not in the model";
    case EFinding::LoadOnLostWall:
        return "a line load on " + NameOf(finding) +
               " names an element that is not in the model: the wall was left out";
    case EFinding::LoadCut:
        return load + " reaches beyond end j and is cut there: " + CutText(finding.values[0]);
    case EFinding::LoadMoved:
        return load + " is put on end j: it acts " + Number(finding.values[0]) + " from end i, and the beam is " +
               Number(finding.values[1]) + " long";
    case EFinding::LoadBeyondEnd:
        return load + " acts " + Number(finding.values[0]) + " from its start, and the wall is " +
               Number(finding.values[1]) + " long: one of its ends is loaded the other way";
    case EFinding::LoadBeforeStart:
        return load + " has a distance below 0, or ends before it starts";
    case EFinding::TrapezoidAsTriangle:
        return load + " is written as a triangle: its sloping parts are longer than half of the beam, or nearly so" +
               (std::isnan(finding.values[0]) ? std::string() : "; " + CutText(finding.values[0]));
    case EFinding::ZeroLoad:
        return load + " is left out: its intensity is 0, or nearly 0";
    default:
        return "block " + std::to_string(finding.story.value_or(0)) + " has no load";
    }
}

}  // namespace

std::string FindingText(const CFinding& finding)
{
    if (finding.code < EFinding::StoryKey) {
        return TextOfFile(finding);
    }
    if (finding.code < EFinding::WallCornerMissing) {
        return TextOfModel(finding);
    }
    return finding.code < EFinding::LoadType ? TextOfMember(finding) : TextOfLoad(finding);
}

}  // namespace satwecvt
