// A model text, line by line: what is taken has to be there, or the text is no model file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace satwecvt {

class CModelText {
public:
    /// The text has to outlive the object, and the lines that it hands out.
    explicit CModelText(std::string_view whole) noexcept : rest(whole) {}

    bool IsAtEnd() const noexcept { return rest.empty(); }

    /// Takes the next line and returns it without its line feed, which stands behind it in the text.
    std::string_view Take();

    /// Takes the next line, which has to be this one.
    void Expect(std::string_view line);

    /// Takes a keyword's line and the comment lines behind it. Returns false, and takes nothing, where another line
    /// comes next.
    [[nodiscard]] bool TakeHeader(std::string_view keywordLine, std::size_t comments);

    /// Takes a header that has to be there.
    void ExpectHeader(std::string_view keywordLine, std::size_t comments);

    /// Throws for the line taken last, which is none of what it should be.
    [[noreturn]] void Refuse(std::string_view noun) const;

    /// Throws a sentence about the line taken last.
    [[noreturn]] void Fail(const std::string& sentence) const;

private:
    std::string_view rest;
    std::string_view last;
    std::int64_t lineNumber = 0;  // of the last line
};

}  // namespace satwecvt
