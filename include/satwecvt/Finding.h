// What a conversion notices, as data: which code, how bad, where in the input, about which object. A listener hears
// each finding at the moment in which it is made; nobody has to be there.
#pragma once

#include <array>
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

/// What was found. `values` holds what stands in brackets behind the code, in this order.
enum class EFinding {
    EndsEarly,           // the load file stopped before its last block was whole [block, blocks, loads read, announced]
    WallCornerMissing,   // the wall is left out [number of the node that is not in the model]
    WallNotUpright,      // the wall is left out [how far an end's nodes are apart in x, in y]
    WallOpening,         // the opening is left out
    PlateCornerMissing,  // triangles are left out [node number, how many triangles, of how many]
    FlatTriangle,        // a triangle without area is left out [its number in the plate, from 1]
    LoadType,            // a load of a type that is not converted [type]
    LoadStoryMissing,    // the loaded object does not exist, nor its story
    LoadBeamMissing,     // the loaded beam does not exist
    LoadWallMissing,     // the loaded wall does not exist
    LoadNodeMissing,     // a node of the loaded beam or wall is not in the model [node number]
    LoadOnLostWall,      // a line load names an element that was left out
    LoadCut,             // a distributed load is cut at end j [force that is missing; below 0: that is added]
    ZeroLoad,            // a type 4 load of no height is left out
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
    std::string quote;               // a text of the input or the system that belongs to it
};

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
