#include "lines/PlainLine.h"

#include "lines/Arithmetic.h"
#include "lines/Decimal.h"

namespace satwecvt {

namespace {

const char* SkipBlanks(const char* at) noexcept
{
    while (*at == ' ' || *at == '\t') {
        ++at;
    }
    return at;
}

/// Reads a number with its arithmetic, and moves `at` behind it.
bool ReadNumber(const char*& at, double& value) noexcept
{
    const bool isNegative = *at == '-';
    at += *at == '-' || *at == '+' ? 1 : 0;
    if (!ReadDecimal(at, value)) {
        return false;
    }
    value = isNegative ? -value : value;
    while (IsOperator(*at)) {
        const char operation = *at++;
        double operand = 0.0;
        if (!ReadDecimal(at, operand)) {
            return false;
        }
        value = Apply(operation, value, operand);
    }
    return true;
}

constexpr bool StartsNumber(char c) noexcept
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.';
}

/// Whether the tokenizer cuts an assignment tail away exactly here: the last space in front of the line's first "=" is
/// the one in front of this word, and it is not the line's first character.
bool StartsAssignmentTail(std::string_view line, const char* word) noexcept
{
    const auto position = static_cast<std::size_t>(word - line.data());
    if (position < 2 || line[position - 1] != ' ') {
        return false;
    }
    const std::size_t end = line.find_first_of("= ", position);
    return end != std::string_view::npos && line[end] == '=';
}

}  // namespace

bool ReadPlainLine(std::string_view line, std::vector<double>& numbers)
{
    numbers.clear();
    if (line.empty() || line.back() != '\n') {
        return false;
    }
    const char* at = SkipBlanks(line.data());
    bool areCommasBetween = false;
    for (;;) {
        double value = 0.0;
        if (!ReadNumber(at, value)) {
            return false;
        }
        numbers.push_back(value);

        const char* next = SkipBlanks(at);
        if (*next == '\n') {
            return next == &line.back();
        }
        const bool isComma = *next == ',';
        if (!isComma && next == at) {
            return false;  // the number runs into something else
        }
        if (numbers.size() == 1) {
            areCommasBetween = isComma;
        }
        if (!isComma && (areCommasBetween || !StartsNumber(*next))) {
            return StartsAssignmentTail(line, next);
        }
        if (isComma != areCommasBetween) {
            return false;  // a comma makes the blanks before it vanish
        }
        at = isComma ? SkipBlanks(next + 1) : next;
    }
}

}  // namespace satwecvt
