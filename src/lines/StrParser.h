// The one gate for every input line: is it a data line, and what are its numbers. Nothing here fails: a malformed
// token has the value of its numeric prefix, or 0.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// Stateless: the operations behave as free functions.
class CStrParser {
public:
    /// Puts the line into upper case where it lies, ASCII letters alone, and returns 1 when it is a data line, 0 when
    /// it is to be skipped: a comment (its very first character is C), or a line without a token.
    [[nodiscard]] static int CheckLine(std::span<char> line);

    /// Appends the value of every token of a text, in order. Returns 1 when `numbers` holds at least one value then,
    /// else 0.
    [[nodiscard]] static int ParseNumbers(std::string_view text, std::vector<double>& numbers);

    /// Appends every token of a text, in order. Returns 1 when `words` holds at least one then, else 0. The last token
    /// of a line with a comma keeps its newline.
    [[nodiscard]] static int ParseWords(std::string_view text, std::vector<std::string>& words);

    /// The value of one token: a number, or numbers joined by + - * / and evaluated from left to right without
    /// precedence (2+3*4 is 20). A leading sign and the sign of an exponent are no operators, but the second of two
    /// neighbouring operators is one, with nothing, that is 0, in between: 3*-2 is (3*0)-2.
    static double EvaluateNumber(std::string_view token) noexcept;

    /// Whether a token, white space at its end left out, is a number from its first character to its last, or several
    /// such numbers joined by operators.
    static bool IsNumber(std::string_view token) noexcept;
};

}  // namespace satwecvt
