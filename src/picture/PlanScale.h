// How a plan of a building comes onto paper. All stories have one scale and one sheet, so that their plans lie over
// each other.
//
// A model has no unit: lengths count as millimetres where the plan is longer than 500, else as metres. The scale is the
// largest of 1:20, 1:50, 1:100, 1:200, 1:500, ... with which the plan fits on A1; the sheet is the smallest one, A4 to
// A1, on which it fits then.
#pragma once

#include "picture/PaperPoint.h"
#include "picture/PlanBox.h"

#include <cstdint>
#include <string_view>

namespace satwecvt {

/// A sheet that lies on its long side; in millimetres.
struct CPlanPaper {
    std::string_view name;
    std::int32_t width;
    std::int32_t height;
};

/// A part of a sheet.
struct CPaperBox {
    CPaperPoint low;   // upper left
    CPaperPoint high;  // lower right
};

class CPlanScale {
public:
    /// `length` is the longer side of the plan from node to node, `drawn` all that is to be drawn.
    CPlanScale(double length, const CPlanBox& drawn);

    const CPlanPaper& Paper() const noexcept { return *paper; }
    std::int64_t Denominator() const noexcept { return denominator; }
    bool IsInMetres() const noexcept { return isInMetres; }

    /// Inside of the border, without the column of the title block.
    CPaperBox Field() const noexcept;

    CPaperPoint ToPaper(CPlanPoint point) const noexcept;
    std::int32_t ToPaper(double length) const noexcept { return PaperLength(length * perLength); }

private:
    double Millimetres() const noexcept { return (isInMetres ? 1000.0 : 1.0) / static_cast<double>(denominator); }

    bool isInMetres;
    std::int64_t denominator = 20;
    const CPlanPaper* paper = nullptr;
    double perLength = 0.0;  // millimetres of paper
    CPlanPoint middle;       // of what is drawn
};

/// The border of a sheet, and the column of the title block along its right side; in hundredths of a millimetre.
CPaperBox BorderOf(const CPlanPaper& paper) noexcept;
inline constexpr std::int32_t kTitleWidth = 6200;

}  // namespace satwecvt
