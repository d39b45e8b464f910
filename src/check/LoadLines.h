// The load lines of a case, handed out to the records that they were made of. A line tells a node or an element and no
// block of the load file; but the lines of a kind stand in the order of the load file, so each belongs to the next
// record of its kind that names its node or its element.
#pragma once

#include "check/LineSum.h"
#include "check/LoadedElements.h"
#include "check/LoadedObject.h"
#include "model/LoadRecord.h"
#include "modelfile/ModelFile.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

class CLoadLines {
public:
    /// Both have to outlive it.
    CLoadLines(const CLoadCase& loadCaseLines, CLoadedElements& loadedElements)
        : loadCase(loadCaseLines),
          elements(loadedElements)
    {}

    /// Takes the lines of the next record that has any.
    CLineSum Take(const T_SATWE_STLD_D& load, const CLoadedObject& object);

    /// Takes what is left: lines that name what no record names. There are none in a model that is right.
    CLineSum TakeRest();

private:
    template <class Line>
    const Line* Next(const std::vector<Line>& lines, std::size_t& next, std::int32_t number);
    void AddNodal(std::int32_t node, CLineSum& sum);

    void LeaveOver(const CNodalLoad& line) { leftOver.Add(elements.ForceOf(line)); }
    void LeaveOver(const CBeamLoad& line) { leftOver.Add(elements.ForceOf(line, elements.FindAny(line))); }
    void LeaveOver(const CEdgeLoad& line) { leftOver.Add(elements.ForceOf(line, elements.FindAny(line))); }

    const CLoadCase& loadCase;
    CLoadedElements& elements;
    std::size_t nextNodal = 0;
    std::size_t nextBeam = 0;
    std::size_t nextEdge = 0;
    CLineSum leftOver;
};

}  // namespace satwecvt
