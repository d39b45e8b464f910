// Columns on a plan, and whatever else stands: the cut through the section at the upper end, turned as the element is.
#pragma once

#include "picture/PlanDrawing.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace satwecvt {

/// Whether a frame element is drawn as a cut: a column that rises more than it leans, or what else is upright.
bool Stands(EObject kind, const CPlanEnds& ends) noexcept;

class CPlanColumns {
public:
    explicit CPlanColumns(CPlanDrawing& planDrawing) : drawing(planDrawing) {}

    /// Adds the frame element at a position.
    void Add(std::size_t position, const CPlanEnds& ends);

    /// Has to run after the last `Add` and before anything is asked. Pieces of one column have one label.
    void AddLabels();

    /// How far on paper the cuts at a node reach beyond it.
    std::int32_t ReachAt(std::int32_t node) const;

private:
    struct CMark {
        std::size_t position;
        CPaperPoint middle;
        std::int32_t reach;
        std::string text;
    };

    bool IsPieceOf(const CMark& mark, std::size_t position, CPaperPoint middle) const;
    void AddCut(const CFrameElement& frame, const CSectionCut& cut, const CPlanEnds& ends, CPaperPoint middle);

    CPlanDrawing& drawing;
    std::vector<CMark> marks;
    std::vector<std::pair<std::int32_t, std::int32_t>> reaches;  // by node
};

}  // namespace satwecvt
