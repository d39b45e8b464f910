#include "lines/LineTokens.h"

#include <algorithm>

namespace satwecvt {

namespace {

constexpr char kTerminator = '\0';

constexpr bool IsBlank(char c) noexcept
{
    return c == ' ' || c == '\t';
}

/// The text up to and including the blank in front of the assignment's word; the whole text when there is none to cut.
/// Only the space character counts as that blank, since tabs become blanks after this step.
std::string_view WithoutAssignmentTail(std::string_view text) noexcept
{
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        return text;
    }
    const std::size_t blank = text.rfind(' ', equals);
    const bool isFound = blank != std::string_view::npos && blank >= 1;
    return isFound ? text.substr(0, blank + 1) : text;
}

}  // namespace

CLineTokens::CLineTokens(std::string_view text)
    : rest(WithoutAssignmentTail(text)),
      isCut(rest.size() != text.size()),
      hasComma(rest.find(',') != std::string_view::npos)
{
    const bool lastCharacterCloses = !hasComma && !isCut && !rest.empty();
    if (lastCharacterCloses) {
        rest.remove_suffix(1);
    }
}

bool CLineTokens::Next(std::string_view& token)
{
    return hasComma ? NextBetweenCommas(token) : NextBetweenBlanks(token);
}

bool CLineTokens::NextBetweenBlanks(std::string_view& token)
{
    const auto begin = std::find_if_not(rest.begin(), rest.end(), IsBlank);
    const auto end = std::find_if(begin, rest.end(), IsBlank);
    token = rest.substr(static_cast<std::size_t>(begin - rest.begin()), static_cast<std::size_t>(end - begin));
    rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
    written = token;
    return !token.empty();
}

bool CLineTokens::NextBetweenCommas(std::string_view& token)
{
    if (isDone) {
        return false;
    }
    const std::size_t comma = rest.find(',');
    if (comma != std::string_view::npos) {
        token = WithoutBlanks(rest.substr(0, comma));
        rest.remove_prefix(comma + 1);
        return true;
    }
    isDone = true;
    token = WithoutBlanks(rest);
    if (token.empty() || (token == "\n" && !isCut)) {
        return false;
    }
    if (isCut) {
        scratch = token;
        scratch += kTerminator;
        token = scratch;
    }
    return true;
}

/// A piece with its blanks and tabs gone; copied only when they stand inside of it.
std::string_view CLineTokens::WithoutBlanks(std::string_view piece)
{
    const auto begin = std::find_if_not(piece.begin(), piece.end(), IsBlank);
    while (begin != piece.end() && IsBlank(piece.back())) {
        piece.remove_suffix(1);
    }
    written = piece.substr(static_cast<std::size_t>(begin - piece.begin()));
    if (std::none_of(written.begin(), written.end(), IsBlank)) {
        return written;
    }
    scratch.assign(written);
    std::erase_if(scratch, IsBlank);
    return scratch;
}

}  // namespace satwecvt
