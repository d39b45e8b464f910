#include "ModelText.h"

#include "Finding.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

namespace satwecvt {

namespace {

constexpr std::string_view kNumberCharacters = "+-.0123456789aefin";  // of nan and inf, too

bool IsInteger(const std::string& number, double value)
{
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    return value >= kLowest && value <= kHighest && std::to_string(static_cast<std::int32_t>(value)) == number;
}

/// Six digits make the same six digits when they are read and written again.
bool IsReal(const std::string& number, double value)
{
    std::array<char, 64> again{};
    std::snprintf(again.data(), again.size(), "%g", value);
    return number == "nan" || (value == value && number == again.data());
}

/// Takes a number from the start of a line.
std::optional<double> TakeNumber(std::string_view& line, char conversion)
{
    const std::string_view characters = line.substr(0, line.find_first_not_of(kNumberCharacters));
    const std::string number(characters);
    const double value = std::strtod(number.c_str(), nullptr);
    if (conversion == 'd' ? !IsInteger(number, value) : !IsReal(number, value)) {
        return std::nullopt;
    }
    line.remove_prefix(characters.size());
    return value;
}

}  // namespace

std::optional<CLineValues> MatchLine(std::string_view line, std::string_view pattern)
{
    CLineValues values;
    while (!pattern.empty()) {
        if (pattern.front() == '%') {
            const std::optional<double> value = TakeNumber(line, pattern[1]);
            if (!value) {
                return std::nullopt;
            }
            values.push_back(*value);
            pattern.remove_prefix(2);
            continue;
        }
        if (line.empty() || line.front() != pattern.front()) {
            return std::nullopt;
        }
        line.remove_prefix(1);
        pattern.remove_prefix(1);
    }
    return line.empty() ? std::optional(values) : std::nullopt;
}

std::string_view CModelText::Take()
{
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) {
        Fail("the model ends within '" + Printable(text) + "'");
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

void CModelText::Take(std::string_view line)
{
    const std::string_view taken = Take();
    if (taken != line) {
        Fail("the line '" + Printable(taken) + "' should be '" + std::string(line) + "'");
    }
}

CLineValues CModelText::TakeMatch(std::string_view pattern)
{
    const std::string_view line = Take();
    const std::optional<CLineValues> values = MatchLine(line, pattern);
    if (!values) {
        Fail("the line '" + Printable(line) + "' should look like '" + std::string(pattern) + "'");
    }
    return *values;
}

bool CModelText::TakeHeader(std::string_view keywordLine, std::size_t comments)
{
    if (IsAtEnd() || Peek() != keywordLine) {
        return false;
    }
    Take();
    for (; comments > 0; --comments) {
        Expect(Take().starts_with(';'), "a keyword has too few comment lines");
    }
    return true;
}

std::vector<std::string_view> CModelText::TakeLines()
{
    std::vector<std::string_view> lines;
    for (std::string_view line = Take(); !line.empty(); line = Take()) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace satwecvt
