// A model text file, line by line, for the checker: what is taken has to be there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace satwecvt {

/// The numbers of a line, in order: integers as doubles, which hold them exactly.
using CLineValues = std::vector<double>;

/// Holds a line against a pattern: %d stands for an integer of 32 bits, %g for a real, each as printf writes it and in
/// no other way; all else stands for itself.
std::optional<CLineValues> MatchLine(std::string_view line, std::string_view pattern);

class CModelText {
public:
    /// The text has to outlive the object.
    explicit CModelText(std::string_view whole) : text(whole) {}

    bool IsAtEnd() const { return text.empty(); }

    /// The line that comes next, without its line feed.
    std::string_view Peek() const { return text.substr(0, text.find('\n')); }

    std::string_view Take();
    void Take(std::string_view line);
    CLineValues TakeMatch(std::string_view pattern);

    /// Takes a keyword's line and the comment lines behind it; answers false when another line comes next.
    bool TakeHeader(std::string_view keywordLine, std::size_t comments);

    /// Takes all lines up to the empty one that closes a block, and that one.
    std::vector<std::string_view> TakeLines();

private:
    std::string_view text;
};

}  // namespace satwecvt
