// Cuts the text of a line into its tokens.
//
// The rules, as the format means them:
// - An assignment tail goes: from the last blank before the first "=" to the end of the line nothing counts. (When no
//   blank stands before the "=" at index 1 or more, nothing goes.)
// - The text's last character only closes the last token. It is the newline, so a final line without one loses its
//   last character in blank mode: "12 34" yields 12 and 3.
// - Without a comma the tokens are parted by blanks and tabs. With a comma anywhere, all blanks and tabs vanish and the
//   tokens are parted by commas: "1 2, 3" yields 12 and 3, "1,,2" an empty token in the middle. The piece behind the
//   last comma, last character included, is a token unless nothing but a newline is there.
// - Behind an assignment tail a terminating character takes the newline's place. It is no white space: "1,2* N=3"
//   yields 1 and "2*" with that character, where "1,2*" and a newline yields 1 and "2*" with the newline.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

class CLineTokens {
public:
    /// The text has to outlive the tokens. It may hold several physical lines that were joined.
    explicit CLineTokens(std::string_view text);

    /// Hands out the next token, good until the next call. Returns false when there is none left.
    bool Next(std::string_view& token);

    /// Whether an assignment tail went.
    bool IsCut() const noexcept { return isCut; }

    /// The token handed out last as it stands in the text, with the blanks and tabs that vanished inside of it.
    std::string_view AsWritten() const noexcept { return written; }

private:
    bool NextBetweenBlanks(std::string_view& token);
    bool NextBetweenCommas(std::string_view& token);
    std::string_view WithoutBlanks(std::string_view piece);

    std::string_view rest;  // what has not been cut yet
    bool isCut;             // an assignment tail went, and the terminating character follows `rest`
    bool hasComma;
    bool isDone = false;  // comma mode: the piece behind the last comma has been handed out
    std::string_view written;
    std::string scratch;  // a token that does not stand in the text in one piece
};

}  // namespace satwecvt
