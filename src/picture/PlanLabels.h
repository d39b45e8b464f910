// The small texts of a plan. A text for which there is no room beside those that were set before is left out.
#pragma once

#include "picture/PaperPoint.h"
#include "picture/PlanScale.h"
#include "picture/SvgText.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace satwecvt {

/// A direction on paper, one long.
struct CPaperDirection {
    double x = 1.0;
    double y = 0.0;
};

class CPlanLabels {
public:
    explicit CPlanLabels(const CPlanPaper& paper);

    /// Keeps texts out of a band along a line, unless the plan is so full that this would take long.
    void Block(CPaperPoint from, CPaperPoint to, std::int32_t halfWidth);

    /// Sets a text around the first of these places where it has room.
    void Add(std::string_view shown, std::initializer_list<CPaperPoint> places, CPaperDirection reading = {});

    /// A direction, or its opposite, so that a text along it is read from below or from the right.
    static CPaperDirection Readable(CPaperDirection along) noexcept;

    void AddTo(CSvgText& svg) const;

    /// How long a text is on paper.
    static std::int32_t LengthOf(std::string_view shown);
    static constexpr std::int32_t kHeight = 220;

private:
    void Set(std::string_view shown, CPaperPoint middle, CPaperDirection reading);
    std::uint8_t* CellAt(double x, double y);
    template <class VisitCell>
    bool VisitCells(CPaperPoint middle, CPaperDirection reading, std::int32_t length, VisitCell visit);

    std::size_t columns;
    std::size_t rows;
    std::vector<std::uint8_t> isTaken;  // by square millimetre
    double cellsToBlock = 2e7;          // that many take no time; where more is blocked, nothing has room
    CSvgText level;
    CSvgText upright;  // in a plane that is turned by a quarter
    CSvgText oblique;
};

}  // namespace satwecvt
