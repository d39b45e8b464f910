// Beams and braces on a plan, and columns that lie.
#pragma once

#include "picture/PlanColumns.h"
#include "picture/PlanDrawing.h"

#include <cstddef>

namespace satwecvt {

class CPlanBeams {
public:
    /// The columns have their labels already.
    CPlanBeams(CPlanDrawing& planDrawing, const CPlanColumns& planColumns) : drawing(planDrawing), columns(planColumns)
    {}

    /// Adds the frame element at a position: a brace as a line, others as a band as wide as the section.
    void Add(std::size_t position, const CPlanEnds& ends);

private:
    /// A member on paper.
    struct CLine {
        CPaperPoint from;
        CPaperPoint to;
        CPaperDirection along;
        double length;          // all three in hundredths of a millimetre
        double freeFrom = 0.0;  // where the cuts at its ends leave it, from its end i
        double freeTo = 0.0;
    };

    CLine LineOf(const CFrameElement& frame, const CPlanEnds& ends) const;
    double AddShape(EObject kind, const CFrameElement& frame, const CPlanEnds& ends, const CLine& line);
    void AddHinges(const CFrameElement& frame, const CLine& line);
    void AddLabel(const CFrameElement& frame, const CLine& line, double halfWidth);

    CPlanDrawing& drawing;
    const CPlanColumns& columns;
};

}  // namespace satwecvt
