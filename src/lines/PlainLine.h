// The usual lines of an input file, read in one pass: numbers between blanks or between commas, arithmetic such as
// 2*150, an assignment tail at the end. Whatever looks different is left to CStrParser, whose rules are the format's;
// this one takes a line only where those rules leave nothing open, and then has the same numbers for it.
//
// What is taken, from the start of the line to its newline:
//
//   line    = blanks number { separator number } blanks [ tail ] newline
//   number  = [sign] decimal { operator decimal }     operator + - * /, without a blank
//   decimal = digits with at most one point, and an exponent with at least one digit; at most 19 digits
//   separator: blanks and tabs throughout, or one comma with blanks and tabs around it throughout
//   tail    = a blank, then a word with "=" in it that has no blank in front of its first "=", then anything
//
// A comment, a line without a number, empty tokens, blanks within a comma-parted number, hexadecimal numbers and words
// are not taken, nor is a line without a newline.
#pragma once

#include <string_view>
#include <vector>

namespace satwecvt {

/// Reads the numbers of a line, in place of those that `numbers` holds. Returns false when the line is none that it
/// takes; `numbers` then holds anything.
bool ReadPlainLine(std::string_view line, std::vector<double>& numbers);

}  // namespace satwecvt
