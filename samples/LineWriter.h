// Writes the lines of a sample input file in the many looks that real input files have.
//
// The look of a data line depends on its position in the file: blanks, tabs, a leading indent, commas with or without
// blanks, now and then an assignment tail such as " NOTE=revised". The numbers mean the same in every look. Two rules
// keep it so:
// - A blank stands in front of a tail. A tab would not cut the tail off.
// - A line with commas has one after every number but the last. Blanks do not separate numbers there.
//
// Lines end with a single line feed on every platform.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace satwecvt {

/// A number that is written as a sum: 8400+4200.
struct CSum {
    std::int64_t left;
    std::int64_t right;
};

/// A number that is written as a product: 2*150.
struct CProduct {
    std::int64_t left;
    std::int64_t right;
};

/// A number that is written as a quotient: 25/2.
struct CQuotient {
    std::int64_t left;
    std::int64_t right;
};

class CLineWriter {
public:
    /// Creates the file, or empties the one that is there. Throws std::runtime_error with the path when that fails, as
    /// every later call does when the file cannot be written.
    explicit CLineWriter(const std::string& filePath);

    /// Writes a data line in the look that its position asks for. An item is an integer, a real, an enumerator (its
    /// number is written), a CSum, a CProduct or a CQuotient.
    template <class... Items>
    void Row(Items... items)
    {
        static constexpr std::string_view kTails[] = {" NOTE=REVISED", " rev=2", " ID=B-07,08", " PHASE=1 (as built)"};
        const CLook look = kLooks[rows % kLooks.size()];
        const bool hasTail = rows % 9 == 7;
        const std::string_view tail = kTails[rows / 9 % std::size(kTails)];
        ++rows;
        WriteRow(look, hasTail ? tail : std::string_view(), items...);
    }

    /// Writes a data line that starts with a number and has a blank between its numbers. Its items are those of `Row`.
    template <class... Items>
    void PlainRow(Items... items)
    {
        WriteRow(kPlain, {}, items...);
    }

    /// Writes a data line that starts with a blank and has a blank between its numbers. Its items are those of `Row`.
    template <class... Items>
    void IndentedRow(Items... items)
    {
        WriteRow(kIndented, {}, items...);
    }

    /// Writes a line as it stands: a comment, a blank line, or a data line that must keep its exact text. It has at
    /// most 499 characters.
    void Text(std::string_view text);

    /// Writes several lines as they stand.
    void Texts(std::span<const std::string_view> texts);

    /// Writes what is still buffered and closes the file. Throws std::logic_error when the file has another number of
    /// lines than expected. Without this call the end of the file is missing.
    void Close(std::int64_t expectedLines);

private:
    struct CLook {
        std::string_view indent;
        std::string_view separator;
    };

    static constexpr CLook kPlain = {"", " "};
    static constexpr CLook kIndented = {" ", " "};
    static constexpr CLook kWide = {"   ", "  "};
    static constexpr CLook kTabs = {"", "\t"};
    static constexpr CLook kCommas = {"", ", "};
    static constexpr CLook kTightCommas = {"", ","};
    static constexpr std::array<CLook, 16> kLooks = {kPlain, kPlain, kPlain, kCommas,  //
                                                     kPlain, kPlain, kTabs,  kPlain,   //
                                                     kPlain, kWide,  kPlain, kPlain,   //
                                                     kPlain, kPlain, kPlain, kTightCommas};
    static constexpr std::size_t kLineRoom = 500;  // the newline included; longer lines would be read in pieces

    template <class... Items>
    void WriteRow(CLook look, std::string_view tail, Items... items)
    {
        MakeRoom();
        std::string_view gap = look.indent;
        ((Put(gap), Put(items), gap = look.separator), ...);
        Put(tail);
        EndLine();
    }

    void Put(std::string_view text) { used += text.copy(buffer.data() + used, text.size()); }

    template <class Number>
    requires std::integral<Number> || std::floating_point<Number>
    void Put(Number value)
    {
        const auto end = std::to_chars(buffer.data() + used, buffer.data() + buffer.size(), value).ptr;
        used = static_cast<std::size_t>(end - buffer.data());
    }

    template <class Enumeration>
    requires std::is_enum_v<Enumeration>
    void Put(Enumeration enumerator) { Put(static_cast<std::underlying_type_t<Enumeration>>(enumerator)); }

    void Put(CSum sum) { PutPair(sum.left, '+', sum.right); }
    void Put(CProduct product) { PutPair(product.left, '*', product.right); }
    void Put(CQuotient quotient) { PutPair(quotient.left, '/', quotient.right); }

    void PutPair(std::int64_t left, char sign, std::int64_t right)
    {
        Put(left);
        buffer[used++] = sign;
        Put(right);
    }

    void EndLine()
    {
        buffer[used++] = '\n';
        ++lines;
    }

    void MakeRoom()
    {
        if (buffer.size() - used < kLineRoom) {
            Flush();
        }
    }

    void Flush();
    void CheckFile() const;

    std::string path;
    std::ofstream file;
    std::vector<char> buffer;
    std::size_t used = 0;    // bytes of the buffer
    std::size_t rows = 0;    // calls of `Row`
    std::int64_t lines = 0;  // of all kinds
};

}  // namespace satwecvt
