#include "PrintedNumbers.h"

#include "Finding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <string>

namespace satwecvt {

namespace {

/// The words that begin with a digit: the version, flags of a release, empty properties of a section, a shape, steels.
constexpr std::string_view kWords[] = {"5.8.0", "000000", "000011", "0.", "2C", "15MnV", "16Mn"};

/// Takes what stands in front of a separator, and the separator.
std::string_view TakePart(std::string_view& text, char separator)
{
    const std::string_view part = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(text.size(), part.size() + 1));
    return part;
}

bool IsNumber(std::string_view field)
{
    constexpr std::string_view kFirst = "-0123456789";
    const bool beginsAsOne = !field.empty() && kFirst.find(field.front()) != std::string_view::npos;
    return (beginsAsOne || field == "nan" || field == "inf") &&
           std::find(std::begin(kWords), std::end(kWords), field) == std::end(kWords);
}

/// Whether a column holds integers: all do in the lines of elements, but for the angle of a beam. Elsewhere the first
/// does, except in the further lines of a section, which stand more to the right.
bool IsOfIntegers(std::string_view keywordLine, std::string_view line, std::size_t column)
{
    if (keywordLine.starts_with("*ELEMENT")) {
        constexpr std::size_t kAngle = 6;
        return column != kAngle || line.find("BEAM") == std::string_view::npos;
    }
    return column == 0 && !line.starts_with("    ");
}

void CheckLine(std::string_view keywordLine, std::string_view line)
{
    std::string_view rest = line;
    for (std::size_t column = 0; !rest.empty(); ++column) {
        std::string_view field = TakePart(rest, ',');
        field.remove_prefix(std::min(field.size(), field.find_first_not_of(' ')));
        const bool isInteger = IsOfIntegers(keywordLine, line, column);
        if (IsNumber(field) && !(isInteger ? IsPrintedInteger(field) : IsPrintedReal(field))) {
            Fail("'" + Printable(field) + "' is not written as printf does it, in '" + Printable(line) + "'");
        }
    }
}

}  // namespace

bool IsPrintedInteger(std::string_view text)
{
    const std::string number(text);
    const long long value = std::strtoll(number.c_str(), nullptr, 10);
    return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max() &&
           std::to_string(value) == number;
}

/// Six digits make the same six digits when they are read and written again.
bool IsPrintedReal(std::string_view text)
{
    const std::string number(text);
    const double value = std::strtod(number.c_str(), nullptr);
    std::array<char, 64> again{};
    std::snprintf(again.data(), again.size(), "%g", value);
    return number == "nan" || (value == value && number == again.data());
}

void CheckPrintedNumbers(std::string_view model)
{
    std::string_view keywordLine;
    while (!model.empty()) {
        const std::string_view line = TakePart(model, '\n');
        if (line.starts_with('*')) {
            keywordLine = line;
        } else if (!line.starts_with(';')) {
            CheckLine(keywordLine, line);
        }
    }
}

}  // namespace satwecvt
