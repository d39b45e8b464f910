#include "picture/PathText.h"

namespace satwecvt {

void CPathText::AddLine(CPaperPoint from, CPaperPoint to)
{
    MoveTo(from);
    LineTo(to);
}

void CPathText::AddPolygon(std::span<const CPaperPoint> corners)
{
    AddPolyline(corners);
    text += 'z';
}

void CPathText::AddPolyline(std::span<const CPaperPoint> corners)
{
    MoveTo(corners.front());
    for (const CPaperPoint& corner : corners.subspan(1)) {
        LineTo(corner);
    }
}

void CPathText::AddCircle(CPaperPoint middle, std::int32_t radius, bool isClockwise)
{
    MoveTo({middle.x - radius, middle.y});
    for (const std::int32_t diameter : {2 * radius, -2 * radius}) {
        text += 'a';
        AppendNumber(radius);
        AppendNumber(radius);
        text += isClockwise ? " 0 1 1" : " 0 1 0";
        AppendNumber(diameter);
        text += " 0";
    }
    text += 'z';
}

void CPathText::MoveTo(CPaperPoint point)
{
    text += 'M';
    AppendNumber(point.x);
    AppendNumber(point.y);
    last = point;
}

void CPathText::LineTo(CPaperPoint point)
{
    const std::int32_t x = point.x - last.x;
    const std::int32_t y = point.y - last.y;
    if (x == 0 && y == 0) {
        return;
    }
    if (y == 0) {
        text += 'h';
        AppendNumber(x);
    } else if (x == 0) {
        text += 'v';
        AppendNumber(y);
    } else {
        text += 'l';
        AppendNumber(x);
        AppendNumber(y);
    }
    last = point;
}

/// A blank stands only where two numbers would run into one.
void CPathText::AppendNumber(std::int32_t hundredths)
{
    const bool isBehindDigit = text.back() >= '0' && text.back() <= '9';
    if (isBehindDigit && hundredths >= 0) {
        text += ' ';
    }
    AppendMillimetres(text, hundredths);
}

}  // namespace satwecvt
