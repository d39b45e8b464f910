#include "check/RecordChecks.h"

#include "check/LookFinding.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

namespace {

/// Whether the frame is the upper piece of a split column, whose end i is the end j of the lower piece.
bool IsUpperPiece(const CSatweModel& model, const CElementName& name)
{
    return name.kind == EObject::Column && StoryOf(model, name.level).columns.At(name.record).seq != name.element;
}

void TellThickness(const CSatweModel& model, const CElementName& name, double thickness, CFindingListener& listener)
{
    if (thickness <= 0.0) {
        CFinding finding = ElementFinding(EFinding::ThicknessZero, model, name);
        finding.values[0] = thickness;
        listener.Tell(finding);
    }
}

}  // namespace

void TellStoryKeys(const CSatweModel& model, CFindingListener& listener)
{
    const std::size_t stories = model.stories.Count();
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        if (story.key < 1 || static_cast<std::size_t>(story.key) > stories) {
            CFinding finding = StoryFinding(EFinding::StoryKey, story);
            finding.values[0] = static_cast<double>(stories);
            listener.Tell(finding);
        }
    }
}

void TellReplacedNodes(const CSatweModel& model, const CNodeList& nodes, CFindingListener& listener)
{
    for (const CReplacedNode& replaced : nodes.Replaced()) {
        CFinding finding = NodeFinding(EFinding::NodeNumberTwice, model, replaced.node);
        finding.values[0] = replaced.later->line;
        listener.Tell(finding);
    }
}

void TellMissingNodes(const CSatweModel& model, const CFrameList& frames, CFindingListener& listener)
{
    const auto tell = [&](const CFrame& frame, std::uint32_t position) {
        CFinding finding = ElementFinding(EFinding::NodeMissing, model, frame.name);
        finding.values[0] = frames.NumberAt(position);
        listener.Tell(finding);
    };
    for (const CFrame& frame : frames.Frames()) {
        if (frames.IsMissing(frame.nodeI) && !IsUpperPiece(model, frame.name)) {
            tell(frame, frame.nodeI);
        }
        if (frames.IsMissing(frame.nodeJ) && frame.nodeJ != frame.nodeI) {
            tell(frame, frame.nodeJ);
        }
    }
}

void TellUnusedNodes(const CSatweModel& model, const CNodeList& nodes, const CHangingParts& parts,
                     CFindingListener& listener)
{
    struct CUnused {
        std::int64_t count = 0;
        std::int32_t firstLine = 0;
    };
    std::vector<CUnused> unused(model.stories.Count() + 1);
    for (std::size_t position = 0; position < nodes.Count(); ++position) {
        if (!parts.IsUsed(position)) {
            CUnused& ofLevel = unused[nodes.At(position).level];
            if (ofLevel.count++ == 0) {
                ofLevel.firstLine = nodes.At(position).record->line;
            }
        }
    }
    for (std::uint32_t level = kModelLevel; level < unused.size(); ++level) {
        if (unused[level].count == 0) {
            continue;
        }
        // The model level has no line of its own: its first such node stands for it.
        CFinding finding = level == kModelLevel
                               ? MakeFinding(EFinding::NodeUnused, {ESource::StructureFile, unused[level].firstLine})
                               : StoryFinding(EFinding::NodeUnused, StoryOf(model, level));
        finding.object = EObject::Story;
        finding.values[0] = static_cast<double>(unused[level].count);
        listener.Tell(finding);
    }
}

void TellThicknesses(const CSatweModel& model, CFindingListener& listener)
{
    std::uint32_t level = kModelLevel;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        ++level;
        std::uint32_t record = 0;
        for (const T_SATWE_STWL_D& wall : story.walls.Records()) {
            TellThickness(model, {EObject::Wall, level, record++, wall.seq}, wall.wallValues[1], listener);
        }
        record = 0;
        for (const T_SATWE_STPL_D& plate : story.plates.Records()) {
            TellThickness(model, {EObject::Plate, level, record++, plate.seq}, plate.thickness, listener);
        }
    }
}

}  // namespace satwecvt
