// What a conversion notices, as data: which code, how bad, where in the input, about which object. A listener hears
// each finding at the moment in which it is made; nobody has to be there.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// What a finding, or a failure, is about.
enum class ESource { StructureFile, LoadFile, Model };

/// A line of an input file, counted from 1; 0 stands for the file as a whole.
struct CPlace {
    ESource source = ESource::Model;
    std::int64_t line = 0;
};

enum class ESeverity {
    Loss,   // something of the input is not in the model
    Doubt,  // it is, but its author may have meant something else
    Note,   // worth knowing
};

enum class EObject { None, Beam, Column, Brace, Wall, Plate, Node, Section, Story, Load };

/// What was found. `values` holds what stands in brackets behind the code, in this order; `quote` the text of the input
/// or the system's word that belongs to it.
enum class EFinding {
    // About a file and its lines.
    ByteOrderMark,     // the file starts with EF BB BF
    Utf16,             // the file starts with FF FE or FE FF
    NoLineEnd,         // the last line that is read lost its last character for it; quoted
    EndMark,           // a byte 1A ends the file [bytes behind it]
    NulByte,           // NULs end the text of lines that are read, told once a file [how many lines]
    LongLine,          // a data line of more than 499 characters, read in pieces
    RestNotRead,       // data lines behind the last story or block [how many]
    SameFile,          // both inputs are one file
    FilesSwapped,      // the two files look like each other's kind
    EndsEarly,         // the load file stopped before its last block was whole [block, blocks, loads read, announced];
                       // quoted is the system's word where it refused to read on
    NotANumber,        // the text of a number, quoted, is not one from its first to its last character [value]
    FusedNumbers,      // blanks between digits of one token, quoted, in a line with a comma [value]
    NumberOutOfRange,  // inf, nan, or an integer, quoted, that does not fit 32 bits, in a column that is used [value]

    // About the model that was read.
    StoryKey,            // the story's key is none of 1 to the number of stories [stories]
    NodeNumberTwice,     // a later node has its number [line of the later one]
    NodeMissing,         // a frame element names a node that is not in the model [node number]
    NodeUnused,          // nodes that no element uses, by story [how many]
    SectionNumberTwice,  // another section has its number later [line of the later one]
    SectionMissing,      // a member names a section that is not defined [section number]
    SectionKind,         // a section of a kind without lines is in use [kind, members that use it]
    GradeUnknown,    // the default is taken for it, by story [grade, members; 0: a steel grade, 1: a concrete grade]
    ThicknessZero,   // a wall or plate of no thickness [thickness]
    ZeroLength,      // a frame element whose ends coincide, a wall or a triangle with two such corners
    SameNodes,       // two of one kind on the same nodes; of plates, two triangles [element number of the other]
    NodesCoincide,   // two used nodes at one place [number of the other]
    NodeOnMember,    // a used node inside a beam, which is the object [node number]
    BeamsCross,      // without a common node [element number of the other]
    MembersOverlap,  // two frame elements on one line share more than a point [element number of the other]
    NotSupported,    // no way leads from elements that hang together to a support [how many elements]
    LookIncomplete,  // so many members lie so close together that not every pair was looked at

    // About what the writing leaves out.
    WallCornerMissing,   // the wall is left out [number of the node that is not in the model]
    WallNotUpright,      // the wall is left out [how far an end's nodes are apart in x, in y]
    WallOpening,         // the opening is left out
    PlateCornerMissing,  // triangles are left out [node number, how many triangles, of how many]
    PlateTooFewCorners,  // the plate is left out [its corners]
    FlatTriangle,        // a triangle without area is left out [its number in the plate, from 1; of how many]

    // About loads.
    LoadType,             // a load of a type that is not converted [type]
    LoadStoryMissing,     // the loaded object does not exist, nor its story
    LoadBeamMissing,      // the loaded beam does not exist
    LoadWallMissing,      // the loaded wall does not exist
    LoadNodeMissing,      // the loaded node, or one of the loaded beam or wall, is not in the model [node number]
    LoadOnLostWall,       // a line load names an element that was left out
    LoadCut,              // a distributed load is cut at end j [force that is missing; below 0: that is added]
    LoadMoved,            // a single force beyond end j is put on end j [its distance, the beam's length]
    LoadBeyondEnd,        // a force beyond the end of a wall lifts its start [its distance, the wall's length]
    LoadBeforeStart,      // a distance below 0, or an end before its start
    TrapezoidAsTriangle,  // sloping parts longer than half of the beam, or nearly so [force that is missing, nan where
                          // that cannot be told]
    ZeroLoad,             // a type 4 load of no height is left out
    StoryWithoutLoad,     // a block without a load while others have some
};

struct CFinding {
    EFinding code{};
    ESeverity severity{};
    CPlace place;

    // The object, as far as it applies.
    EObject object = EObject::None;
    std::optional<std::int32_t> story;     // the story's key
    std::optional<std::int32_t> storyNo;   // the story's number
    std::optional<std::int32_t> key;       // the object's key; a node's number
    std::optional<std::int32_t> element;   // the element number that it has in the model, or would have
    std::optional<std::int32_t> loadCase;  // of the load: 0 dead, 1 live

    std::array<double, 4> values{};  // see `EFinding`
    std::string quote;               // see `EFinding`
};

/// How many codes there are: they count up from 0.
inline constexpr std::size_t kFindingCodes = static_cast<std::size_t>(EFinding::StoryWithoutLoad) + 1;

/// A finding with the severity that its code has, unless its place says otherwise, and nothing else yet.
CFinding MakeFinding(EFinding code, const CPlace& place);

class CFindingListener {
public:
    virtual ~CFindingListener() = default;

    /// Called for each finding while a conversion runs. A dead load that is left out is met under both load cases, and
    /// told under each. An exception ends the conversion as a failed one.
    virtual void Tell(const CFinding& finding) = 0;
};

/// A listener that keeps what it hears.
class CFindingList : public CFindingListener {
public:
    void Tell(const CFinding& finding) override { findings.push_back(finding); }

    const std::vector<CFinding>& Findings() const noexcept { return findings; }

private:
    std::vector<CFinding> findings;
};

/// The word for a code, such as "wall-not-upright". It never changes.
std::string_view CodeName(EFinding code) noexcept;

/// "loss", "doubt" or "note".
std::string_view SeverityName(ESeverity severity) noexcept;

/// "beam", "wall", ...; empty for none.
std::string_view ObjectName(EObject object) noexcept;

/// One sentence for a person, such as "wall 5 of story 8 is left out: its ends do not stand upright, 120 apart in x".
std::string FindingText(const CFinding& finding);

}  // namespace satwecvt
