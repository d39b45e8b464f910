#include "writer/NodalLoadBlock.h"

#include "finding/InvalidArgument.h"
#include "geometry/MathFunc.h"
#include "writer/WriterFindings.h"

#include <string>

namespace satwecvt {

namespace {

void WriteNodalHeader(COutputFile& modelFile)
{
    WriteLine(modelFile,
              "*CONLOAD    ; Nodal Loads\n"
              "; NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n");
}

/// The failure of a force whose wall is not there, or has no first node row.
CInvalidArgument NoSuchWall(const T_SATWE_STLD_D& load, bool isThere)
{
    return {{ESource::LoadFile, load.line},
            "a force on wall " + std::to_string(load.memberId) + " of story " + std::to_string(load.storyId) +
                (isThere ? ", which has no nodes" : ", which does not exist")};
}

void WriteForceLine(CLoadOutput& output, std::int32_t node, double forceZ)
{
    WriteLine(output.modelFile, "%d, %g, %g, %g, %g, %g, %g\n", node, 0.0, 0.0, forceZ, 0.0, 0.0, 0.0);
    ++output.counts.nodalLoads;
}

/// A force beside its wall loads one end more than whole, and the other one the other way.
void TellForceBeside(CLoadOutput& output, const T_SATWE_STLD_D& load, const T_SATWE_STIF_D& story, std::int32_t element,
                     double length)
{
    const double distance = load.value[1];
    const double toSpare = kLengthToSpare * length;
    const bool isBefore = distance < -toSpare;
    if (load.value[0] != 0.0 && (isBefore || distance > length + toSpare)) {
        CFinding finding =
            LoadFinding(isBefore ? EFinding::LoadBeforeStart : EFinding::LoadBeyondEnd, load, EObject::Wall, &story);
        finding.element = element;
        if (!isBefore) {
            finding.values = {distance, length};
        }
        output.findings.Tell(finding);
    }
}

/// Splits the force P at distance a from the first node of the wall's first row into two statically equivalent forces
/// at the ends of that row.
void WriteWallForce(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = output.model.stories.Find(load.storyId);
    const T_SATWE_STWL_D* wall = story != nullptr ? story->walls.Find(load.memberId) : nullptr;
    if (wall == nullptr || wall->firstCount < 1) {
        throw NoSuchWall(load, wall != nullptr);
    }
    const CNodeRow& row = wall->firstListA;
    const T_SATWE_STND_D* first = output.writtenNodes.Find(row.first);
    const T_SATWE_STND_D* last = output.writtenNodes.Find(row.last);
    if (first == nullptr || last == nullptr) {
        CFinding finding = LoadFinding(EFinding::LoadNodeMissing, load, EObject::Wall, story);
        finding.element = wall->seq;
        finding.values[0] = first == nullptr ? row.first : row.last;
        output.findings.Tell(finding);
        return;
    }
    const double p = load.value[0];
    const double a = load.value[1];
    const double length = CMathFunc::Distance(first->x, first->y, first->z, last->x, last->y, last->z);
    WriteForceLine(output, row.first, -((length - a) * p / length));
    WriteForceLine(output, row.last, -(p * a / length));
    TellForceBeside(output, load, *story, wall->seq, length);
}

/// A load on a node that is not in the model is written all the same, and means nothing there.
void TellMissingNode(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    CFinding finding =
        LoadFinding(EFinding::LoadNodeMissing, load, EObject::Node, output.model.stories.Find(load.storyId));
    finding.severity = ESeverity::Doubt;
    finding.values[0] = load.memberId;
    output.findings.Tell(finding);
}

void WriteNodeForce(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    const auto& value = load.value;
    if (load.loadType == ELoadType::NodeForceMoments) {
        WriteLine(output.modelFile, "%d, %g, %g, %g, %g, %g, %g\n", load.memberId, 0.0, 0.0, -value[0], value[1],
                  value[2], 0.0);
    } else {
        WriteLine(output.modelFile, "%d, %g, %g, %g, 0, 0, 0\n", load.memberId, value[1], value[2], -value[0]);
    }
    ++output.counts.nodalLoads;
    if (output.writtenNodes.Find(load.memberId) == nullptr) {
        TellMissingNode(output, load);
    }
}

void WriteNodalLoad(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    if (load.loadType == ELoadType::WallForce) {
        WriteWallForce(output, load);
    } else {
        WriteNodeForce(output, load);
    }
}

}  // namespace

void WriteNodalLoads(CLoadOutput& output, ELoadCase loadCase)
{
    CLoadBlock block(output, WriteNodalHeader);
    block.Write(
        loadCase, [](ELoadBlock taken) { return taken == ELoadBlock::Nodal; },
        [&](const T_SATWE_STLD_D& load) {
            block.NeedHeader();
            WriteNodalLoad(output, load);
        });
}

}  // namespace satwecvt
