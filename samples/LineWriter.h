// Writes the lines of a sample input file: numbers in a row, dressed the way exporting programs and people dress them.
//
// Row() writes one data line and picks its look by the line's position in the file: blanks, tabs, a leading indent,
// commas with or without blanks, now and then an assignment tail such as " NOTE=revised". The numbers meant are the
// same in every look; that is what the samples are for. Two rules keep it so: a tail is always parted by a blank (a tab
// would not cut it off), and a line with a comma has one after every number but the last (blanks do not part numbers
// there). PlainRow() and IndentedRow() write lines that must keep one look.
//
// Lines end with a single line feed on every platform. A failed write is a std::runtime_error with the path in it.

#ifndef SATWECVT_SAMPLES_LINEWRITER_H
#define SATWECVT_SAMPLES_LINEWRITER_H

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Numbers that are written as a small calculation: 8400+4200, 2*150, 25/2.
struct Sum {
    std::int64_t left;
    std::int64_t right;
};

struct Product {
    std::int64_t left;
    std::int64_t right;
};

struct Quotient {
    std::int64_t left;
    std::int64_t right;
};

class CLineWriter {
public:
    explicit CLineWriter(const std::string& path)
        : path_(path),
          file_(path, std::ios::binary | std::ios::trunc),
          buffer_(kBufferSize)
    {
        CheckFile();
    }

    template <class... Items>
    void Row(Items... items)
    {
        static constexpr std::string_view kTails[] = {" NOTE=REVISED", " rev=2", " ID=B-07,08", " PHASE=1 (as built)"};
        const Look look = kLooks[rows_ % kLooks.size()];
        const bool tailed = rows_ % 9 == 7;
        const std::string_view tail = kTails[rows_ / 9 % std::size(kTails)];
        ++rows_;
        WriteRow(look, tailed ? tail : std::string_view(), items...);
    }

    template <class... Items>
    void PlainRow(Items... items)
    {
        WriteRow(kPlain, {}, items...);
    }

    template <class... Items>
    void IndentedRow(Items... items)
    {
        WriteRow(kIndented, {}, items...);
    }

    // A line as it stands: a comment, a blank line, or a data line that must keep its exact text.
    void Text(std::string_view text)
    {
        MakeRoom();
        Put(text);
        EndLine();
    }

    std::int64_t Lines() const { return lines_; }

    // Writes what is still buffered. Called once, at the end; a writer that dies without it leaves a cut file.
    void Close()
    {
        Flush();
        file_.close();
        CheckFile();
    }

private:
    struct Look {
        std::string_view indent;
        std::string_view separator;
    };

    static constexpr Look kPlain = {"", " "};
    static constexpr Look kIndented = {" ", " "};
    static constexpr Look kWide = {"   ", "  "};
    static constexpr Look kTabs = {"", "\t"};
    static constexpr Look kCommas = {"", ", "};
    static constexpr Look kTightCommas = {"", ","};
    static constexpr std::array<Look, 16> kLooks = {kPlain, kPlain, kPlain, kCommas,  //
                                                    kPlain, kPlain, kTabs,  kPlain,   //
                                                    kPlain, kWide,  kPlain, kPlain,   //
                                                    kPlain, kPlain, kPlain, kTightCommas};
    static constexpr std::size_t kBufferSize = std::size_t{1} << 20;
    static constexpr std::size_t kLineRoom = 500;  // no line is longer: the format's readers cut at 499 characters

    template <class... Items>
    void WriteRow(Look look, std::string_view tail, Items... items)
    {
        MakeRoom();
        std::string_view gap = look.indent;
        ((Put(gap), Put(items), gap = look.separator), ...);
        Put(tail);
        EndLine();
    }

    void Put(std::string_view text) { used_ += text.copy(buffer_.data() + used_, text.size()); }

    template <class Number>
    requires std::integral<Number> || std::floating_point<Number>
    void Put(Number value)
    {
        const auto end = std::to_chars(buffer_.data() + used_, buffer_.data() + buffer_.size(), value).ptr;
        used_ = static_cast<std::size_t>(end - buffer_.data());
    }

    void Put(Sum sum) { PutPair(sum.left, '+', sum.right); }

    void Put(Product product) { PutPair(product.left, '*', product.right); }

    void Put(Quotient quotient) { PutPair(quotient.left, '/', quotient.right); }

    void PutPair(std::int64_t left, char sign, std::int64_t right)
    {
        Put(left);
        buffer_[used_++] = sign;
        Put(right);
    }

    void EndLine()
    {
        buffer_[used_++] = '\n';
        ++lines_;
    }

    void MakeRoom()
    {
        if (buffer_.size() - used_ < kLineRoom) {
            Flush();
        }
    }

    void Flush()
    {
        file_.write(buffer_.data(), static_cast<std::streamsize>(used_));
        used_ = 0;
        CheckFile();
    }

    void CheckFile() const
    {
        if (!file_) {
            throw std::runtime_error("cannot write " + path_);
        }
    }

    std::string path_;
    std::ofstream file_;
    std::vector<char> buffer_;
    std::size_t used_ = 0;
    std::size_t rows_ = 0;
    std::int64_t lines_ = 0;
};

#endif
