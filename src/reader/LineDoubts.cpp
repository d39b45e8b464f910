#include "reader/LineDoubts.h"

#include "lines/LineTokens.h"
#include "lines/NumberPrefix.h"
#include "lines/StrParser.h"

#include <algorithm>
#include <cctype>

namespace satwecvt {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF"sv;

bool StartsAsUtf16(std::string_view text)
{
    return text.starts_with("\xFF\xFE"sv) || text.starts_with("\xFE\xFF"sv);
}

constexpr bool IsBlank(char c) noexcept
{
    return c == ' ' || c == '\t';
}

constexpr bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

/// Whether blanks that vanished stood between two digits.
bool IsFused(std::string_view written)
{
    for (std::size_t i = 1; i < written.size(); ++i) {
        if (!IsBlank(written[i]) || !IsDigit(written[i - 1])) {
            continue;
        }
        const auto next = std::find_if_not(written.begin() + static_cast<std::ptrdiff_t>(i), written.end(), IsBlank);
        if (next != written.end() && IsDigit(*next)) {
            return true;
        }
    }
    return false;
}

/// Whether two texts are one but for the case of their letters.
bool AreOne(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char left, char right) {
        return std::toupper(static_cast<unsigned char>(left)) == std::toupper(static_cast<unsigned char>(right));
    });
}

/// Whether a token goes over a line end and has the same number on both sides of it. In a slab over several lines the
/// numbers around a line end are one, so whoever starts a line at its first column repeats the last corner there. A
/// number with arithmetic is none: its second half would be reckoned with the first.
bool IsRepeatedCorner(std::string_view token)
{
    const std::size_t end = token.find('\n');
    if (end == std::string_view::npos) {
        return false;
    }
    const std::string_view corner = token.substr(0, end);
    for (token.remove_prefix(end + 1); token.find('\n') != std::string_view::npos; token.remove_prefix(end + 1)) {
        if (!AreOne(token.substr(0, end), corner) || token[end] != '\n') {
            return false;
        }
    }
    return AreOne(token, corner) && FindNumberPrefix(corner).length == corner.size();
}

/// Cuts a text into its tokens, and knows the line of each: the one in which it begins.
class CTokensInLines {
public:
    explicit CTokensInLines(const CNumberText& from) : text(from.text), lines(from.lines), tokens(from.text) {}

    bool Next(std::string_view& token) { return tokens.Next(token); }

    /// The token handed out last as it stands in its line: one behind a comma at a line end stands in the next one.
    std::string_view AsWritten() const
    {
        const std::string_view written = tokens.AsWritten();
        return written.substr(std::min(written.find_first_not_of('\n'), written.size()));
    }

    std::int64_t Line()
    {
        const auto start = static_cast<std::size_t>(AsWritten().data() - text.data());
        while (lines.size() > 1 && start >= lines.front().end) {
            lines = lines.subspan(1);
        }
        return lines.front().line;
    }

private:
    std::string_view text;
    std::span<const CTextLine> lines;  // from that of the last token asked about on
    CLineTokens tokens;
};

/// The last character of a line without a line end, which closes the last token and is lost; none where a comma or an
/// assignment tail makes it count.
std::string_view LostCharacter(std::string_view text)
{
    const bool hasEnd = text.back() == '\n';
    const bool isCounted = text.find(',') != std::string_view::npos || CLineTokens(text).IsCut();
    const bool isNothing = text.back() == '\r' || IsBlank(text.back());
    return hasEnd || isCounted || isNothing ? std::string_view() : text.substr(text.size() - 1);
}

}  // namespace

void CLineDoubts::OfLine(const CInputFile& input, std::string_view text)
{
    const std::int64_t line = input.LineNumber();
    if (line == 1 && text.starts_with(kByteOrderMark)) {
        TellOnce(EFinding::ByteOrderMark, line);
    }
    if (line == 1 && StartsAsUtf16(text)) {
        TellOnce(EFinding::Utf16, line);
    }
    if (input.LineGoesOn()) {
        OfPiece(line);
    } else {
        TellLostCharacter(input, text);
    }
}

void CLineDoubts::OfPassedLine(const CInputFile& input, std::string_view text)
{
    const bool isComment = text.starts_with('C');
    if (!text.empty() && !isComment && !input.LineGoesOn()) {
        TellLostCharacter(input, text);
    }
}

void CLineDoubts::TellLostCharacter(const CInputFile& input, std::string_view text)
{
    const std::int64_t line = input.LineNumber();
    const std::string_view lost = LostCharacter(text);
    if (!lost.empty() && input.NulLines().last != line) {
        TellOnce(EFinding::NoLineEnd, line, lost);
    }
}

void CLineDoubts::OfNumbers(const CNumberText& from)
{
    CTokensInLines tokens(from);
    for (std::string_view token; tokens.Next(token);) {
        if (token.ends_with('\0')) {  // stands for the newline that went with an assignment tail
            token.remove_suffix(1);
        }
        if (!CStrParser::IsNumber(token) && !IsRepeatedCorner(token)) {
            TellOnce(EFinding::NotANumber, tokens.Line(), tokens.AsWritten(), CStrParser::EvaluateNumber(token));
        } else if (IsFused(tokens.AsWritten())) {
            TellOnce(EFinding::FusedNumbers, tokens.Line(), tokens.AsWritten(), CStrParser::EvaluateNumber(token));
        }
    }
}

void CLineDoubts::OfRange(const CLineNumbers& numbers, std::span<const CNumberText> from)
{
    std::size_t position = numbers.OutOfRange().position;
    for (const CNumberText& text : from) {
        CTokensInLines tokens(text);
        for (std::string_view token; tokens.Next(token);) {
            if (--position == 0) {
                TellOnce(EFinding::NumberOutOfRange, tokens.Line(), tokens.AsWritten(), numbers.OutOfRange().usedAs);
                return;
            }
        }
    }
}

void CLineDoubts::OfFile(CInputFile& input, bool isWhole)
{
    const CInputFile::CNulLines nulLines = input.NulLines();
    if (nulLines.count > 0) {
        TellOnce(EFinding::NulByte, nulLines.first, {}, static_cast<double>(nulLines.count));
    }
    try {
        if (isWhole) {
            TellRest(input);
        }
        const auto mark = input.ReadBehindEndMark();
        if (mark && !mark->isBlank) {
            TellOnce(EFinding::EndMark, mark->line, {}, static_cast<double>(mark->bytes));
        }
    } catch (const CFileError&) {
        return;  // nothing of it was needed
    }
}

/// Tells the data lines behind what was read.
void CLineDoubts::TellRest(CInputFile& input)
{
    std::int64_t count = 0;
    std::int64_t first = 0;
    std::int64_t last = 0;
    for (std::span<char> piece; input.ReadLine(piece) != 0;) {
        if (CStrParser::CheckLine(piece) != 0 && input.LineNumber() != last) {
            ++count;
            last = input.LineNumber();
            first = first == 0 ? last : first;
        }
    }
    if (count > 0) {
        TellOnce(EFinding::RestNotRead, first, {}, static_cast<double>(count));
    }
}

void CLineDoubts::TellOnce(EFinding code, std::int64_t line, std::string_view quote, double value)
{
    std::int64_t& toldLine = toldLines[static_cast<std::size_t>(code)];
    if (toldLine == line) {
        return;
    }
    toldLine = line;
    CFinding finding = MakeFinding(code, {source, line});
    finding.quote = quote;
    finding.values[0] = value;
    findings.Tell(finding);
}

}  // namespace satwecvt
