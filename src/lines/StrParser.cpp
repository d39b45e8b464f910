#include "lines/StrParser.h"

#include "lines/Arithmetic.h"
#include "lines/LineTokens.h"
#include "lines/NumberPrefix.h"

#include <algorithm>
#include <cstddef>

namespace satwecvt {

namespace {

constexpr char ToUpper(char c) noexcept
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

/// The first operator of a token at or behind an index; the token's size when there is none.
std::size_t FindOperator(std::string_view token, std::size_t from) noexcept
{
    for (std::size_t i = std::max<std::size_t>(from, 1); i + 1 < token.size(); ++i) {
        const bool isSignOfExponent = ToUpper(token[i - 1]) == 'E';
        const bool followsBlank = token[i - 1] == ' ';
        if (IsOperator(token[i]) && !isSignOfExponent && !followsBlank) {
            return i;
        }
    }
    return token.size();
}

std::string_view WithoutWhiteSpaceBehind(std::string_view token) noexcept
{
    return token.substr(0, token.find_last_not_of(kWhiteSpace) + 1);
}

/// Whether a piece between two operators is a number and nothing else.
bool IsOneNumber(std::string_view piece) noexcept
{
    return !piece.empty() && FindNumberPrefix(piece).length == piece.size();
}

}  // namespace

int CStrParser::CheckLine(std::span<char> line)
{
    std::transform(line.begin(), line.end(), line.begin(), ToUpper);
    if (!line.empty() && line.front() == 'C') {
        return 0;
    }
    std::string_view token;
    return CLineTokens({line.data(), line.size()}).Next(token) ? 1 : 0;
}

int CStrParser::ParseNumbers(std::string_view text, std::vector<double>& numbers)
{
    CLineTokens tokens(text);
    for (std::string_view token; tokens.Next(token);) {
        numbers.push_back(EvaluateNumber(token));
    }
    return numbers.empty() ? 0 : 1;
}

int CStrParser::ParseWords(std::string_view text, std::vector<std::string>& words)
{
    CLineTokens tokens(text);
    for (std::string_view token; tokens.Next(token);) {
        words.emplace_back(token);
    }
    return words.empty() ? 0 : 1;
}

double CStrParser::EvaluateNumber(std::string_view token) noexcept
{
    token = WithoutWhiteSpaceBehind(token);
    std::size_t at = FindOperator(token, 1);
    double value = ParseNumberPrefix(token.substr(0, at));
    while (at < token.size()) {
        const std::size_t next = FindOperator(token, at + 1);
        const double operand = ParseNumberPrefix(token.substr(at + 1, next - at - 1));
        value = Apply(token[at], value, operand);
        at = next;
    }
    return value;
}

bool CStrParser::IsNumber(std::string_view token) noexcept
{
    token = WithoutWhiteSpaceBehind(token);
    std::size_t at = FindOperator(token, 1);
    bool isNumber = IsOneNumber(token.substr(0, at));
    while (isNumber && at < token.size()) {
        const std::size_t next = FindOperator(token, at + 1);
        isNumber = IsOneNumber(token.substr(at + 1, next - at - 1));
        at = next;
    }
    return isNumber;
}

}  // namespace satwecvt
