#include "picture/PlanLabels.h"

#include "picture/PlanText.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace satwecvt {

namespace {

/// From one look at the cells to the next: less than a cell.
constexpr std::int32_t kStep = 80;

/// From the middle of the letters down to the line that they stand on.
constexpr double kToBaseline = 0.36 * CPlanLabels::kHeight;

/// To a tenth of a millimetre, which is short to write.
std::int32_t Tenths(double hundredths)
{
    return PaperLength(hundredths / 1000.0) * 10;
}

/// A number from -1 to 1 with four digits behind the point.
std::string RatioText(double ratio)
{
    return LengthText(std::floor(ratio * 1e4 + 0.5) / 1e4);
}

}  // namespace

CPlanLabels::CPlanLabels(const CPlanPaper& paper)
    : columns(static_cast<std::size_t>(paper.width)),
      rows(static_cast<std::size_t>(paper.height)),
      isTaken(columns * rows)
{}

std::int32_t CPlanLabels::LengthOf(std::string_view shown)
{
    return PaperLength(TextWidth(shown) * kHeight / 100.0);
}

CPaperDirection CPlanLabels::Readable(CPaperDirection along) noexcept
{
    constexpr double kUpright = 0.01;  // what is nearly upright is read from the right, too
    const bool isBackward = along.x < -kUpright || (along.x < kUpright && along.y > 0.0);
    return isBackward ? CPaperDirection{-along.x, -along.y} : along;
}

void CPlanLabels::Block(CPaperPoint from, CPaperPoint to, std::int32_t halfWidth)
{
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const auto length = static_cast<std::int32_t>(std::sqrt(x * x + y * y));
    const CPaperDirection along = length > 0 ? CPaperDirection{x / length, y / length} : CPaperDirection{};
    const double cells = halfWidth < 0 ? 0.0 : (1.0 * length / kStep + 1.0) * (2.0 * halfWidth / kStep + 1.0);
    if (cells > cellsToBlock) {
        return;
    }
    cellsToBlock -= cells;
    for (std::int32_t forward = 0; forward <= length; forward += kStep) {
        for (std::int32_t side = -halfWidth; side <= halfWidth; side += kStep) {
            if (std::uint8_t* const cell =
                    CellAt(from.x + forward * along.x - side * along.y, from.y + forward * along.y + side * along.x)) {
                *cell = 1;
            }
        }
    }
}

void CPlanLabels::Add(std::string_view shown, std::initializer_list<CPaperPoint> places, CPaperDirection reading)
{
    const std::int32_t length = LengthOf(shown);
    for (const CPaperPoint& place : places) {
        if (VisitCells(place, reading, length, [](std::uint8_t& cell) { return cell == 0; })) {
            VisitCells(place, reading, length, [](std::uint8_t& cell) {
                cell = 1;
                return true;
            });
            Set(shown, place, reading);
            return;
        }
    }
}

void CPlanLabels::Set(std::string_view shown, CPaperPoint middle, CPaperDirection reading)
{
    const CPaperPoint start{Tenths(middle.x - reading.y * kToBaseline), Tenths(middle.y + reading.x * kToBaseline)};
    if (reading.y == 0.0) {
        level.AddText(start, shown);
        return;
    }
    if (reading.x == 0.0) {
        upright.AddText({-start.y, start.x}, shown);
        return;
    }
    std::string matrix = "matrix(";
    for (const double ratio : {reading.x, reading.y, -reading.y, reading.x}) {
        matrix += RatioText(ratio) + " ";
    }
    AppendMillimetres(matrix, start.x);
    matrix += " ";
    AppendMillimetres(matrix, start.y);
    oblique.AddTurnedText(matrix + ")", shown);
}

void CPlanLabels::AddTo(CSvgText& svg) const
{
    if (level.Text().empty() && upright.Text().empty() && oblique.Text().empty()) {
        return;
    }
    svg.Open(R"(g class="labels" font-size="2.2" text-anchor="middle" fill="#222" stroke="#fff" stroke-width=".5" )"
             R"(stroke-linejoin="round" paint-order="stroke")");
    svg.AddTitle("Sections of beams and braces, element numbers of columns, thicknesses of slabs");
    svg.Add(level.Text());
    svg.Add(oblique.Text());
    if (!upright.Text().empty()) {
        svg.Open("g transform=\"rotate(-90)\"");
        svg.Add(upright.Text());
        svg.Close("g");
    }
    svg.Close("g");
}

/// The cell that a place in hundredths of a millimetre lies in; null off the sheet.
std::uint8_t* CPlanLabels::CellAt(double x, double y)
{
    const double column = std::floor(x / 100.0);
    const double row = std::floor(y / 100.0);
    const bool isOnSheet =
        column >= 0.0 && row >= 0.0 && column < static_cast<double>(columns) && row < static_cast<double>(rows);
    return isOnSheet ? &isTaken[static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column)] : nullptr;
}

/// Visits the cells of a text while `visit` returns true; returns whether it always did. Off the sheet there is no
/// room.
template <class VisitCell>
bool CPlanLabels::VisitCells(CPaperPoint middle, CPaperDirection reading, std::int32_t length, VisitCell visit)
{
    const std::int32_t steps = length / kStep + 1;
    for (std::int32_t step = 0; step <= steps; ++step) {
        const double forward = (1.0 * step / steps - 0.5) * length;
        for (const double down : {-0.5 * kHeight, 0.0, 0.5 * kHeight}) {
            std::uint8_t* const cell = CellAt(middle.x + forward * reading.x - down * reading.y,
                                              middle.y + forward * reading.y + down * reading.x);
            if (cell == nullptr || !visit(*cell)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace satwecvt
