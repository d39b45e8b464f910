// The data of an SVG path. All steps but the first of each line are told by their differences, which are short; one
// of no length is left out.
#pragma once

#include "picture/PaperPoint.h"

#include <span>
#include <string>
#include <string_view>

namespace satwecvt {

class CPathText {
public:
    void AddLine(CPaperPoint from, CPaperPoint to);

    /// A closed line through all corners.
    void AddPolygon(std::span<const CPaperPoint> corners);

    /// A line through all corners, in their order.
    void AddPolyline(std::span<const CPaperPoint> corners);

    /// A circle that runs with the clock or against it: a hole runs against what it is in.
    void AddCircle(CPaperPoint middle, std::int32_t radius, bool isClockwise = true);

    std::string_view Text() const noexcept { return text; }

private:
    void MoveTo(CPaperPoint point);
    void LineTo(CPaperPoint point);
    void AppendNumber(std::int32_t hundredths);

    std::string text;
    CPaperPoint last;
};

}  // namespace satwecvt
