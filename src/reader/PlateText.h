// The logical line of a plate whose outline does not fit on one physical line.
//
// Physical lines are joined as they stand, so the line end of one stands between its last number and the first of the
// next: both fuse into one token. How many numbers the joined text holds decides whether a further line is needed; it
// is counted on while lines are appended, so that joining n lines costs time in proportion to n.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace satwecvt {

class CPlateText {
public:
    /// Starts a new text with its first physical line.
    void Start(std::string_view line);

    /// Appends the next physical line.
    void Append(std::string_view line);

    /// The joined lines; those behind an assignment tail, which add no number, are left out.
    std::string_view Text() const noexcept { return text; }

    /// How many numbers the text holds: as many as the tokenizer cuts out of it.
    std::int64_t NumberCount() const noexcept;

private:
    void CutAssignmentTail();
    void CountWords(std::string_view characters) noexcept;
    void CountCommas(std::string_view characters) noexcept;

    std::string text;
    bool hasAssignment = false;  // a "=" has been met; only the first one counts
    bool isCut = false;          // it took the rest of the text with it: no further line adds a number
    std::int64_t countBeforeCut = 0;

    std::int64_t words = 0;  // blank mode: what stands between blanks, the text's last character left out
    bool inWord = false;
    std::int64_t commas = 0;      // comma mode: each closes a number
    std::int64_t tailLength = 0;  // characters behind the last comma, blanks left out
    char tailFirst = '\0';        // the first of them
};

}  // namespace satwecvt
