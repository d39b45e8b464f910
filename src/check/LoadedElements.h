// The elements of a model text file, and the forces of its load lines on them, as they are written: values, places and
// coordinates have six digits. What is on an element that the file does not have carries nothing.
#pragma once

#include "check/BoundedForce.h"
#include "check/NodesByNumber.h"
#include "check/SortedElements.h"
#include "model/FrameRecords.h"
#include "model/WallRecord.h"
#include "modelfile/ModelFile.h"

#include <cstdint>

namespace satwecvt {

class CLoadedElements {
public:
    /// The file has to outlive it.
    explicit CLoadedElements(const CModelFile& modelFile);

    /// The element that a line on a member names: of those with its number the one between the member's nodes. Null
    /// when the file does not have it.
    const CFrameElement* Find(const CBeamLoad& line, const T_SATWE_STBM_D& beam);
    const CPlanarElement* Find(const CEdgeLoad& line, const T_SATWE_STWL_D& wall);

    /// The first element with the number that a line names; null when the file does not have it.
    const CFrameElement* FindAny(const CBeamLoad& line) const { return frames.FindFirst(line.element); }
    const CPlanarElement* FindAny(const CEdgeLoad& line) const { return walls.FindFirst(line.element); }

    CBoundedForce ForceOf(const CNodalLoad& line) const;

    /// A force at one place; or values between places, straight between them, over the length between the nodes.
    CBoundedForce ForceOf(const CBeamLoad& line, const CFrameElement* beam);

    /// A value along the edge between the third and the fourth node.
    CBoundedForce ForceOf(const CEdgeLoad& line, const CPlanarElement* wall);

private:
    CBounded LengthBetween(std::int32_t first, std::int32_t last);

    CNodesByNumber nodes;
    CSortedElements<CFrameElement, 3> frames;
    CSortedElements<CPlanarElement, 5> walls;

    // The length that was asked for last. Dead loads ask twice, and loads on one member follow each other.
    const CNode* lastFirst = nullptr;
    const CNode* lastLast = nullptr;
    CBounded lastLength;
};

}  // namespace satwecvt
