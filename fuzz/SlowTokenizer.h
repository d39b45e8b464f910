// The rules of an input line once more, written down step by step as the format tells them, with a copy of the text for
// each step. Slow, and so plain that it can be held against the rules by reading it.
#pragma once

#include <string>
#include <vector>

namespace satwecvt {

/// Puts the line into upper case and returns whether it is a data line: no comment, and at least one token.
bool SlowCheckLine(std::string& line);

/// The tokens of a text.
std::vector<std::string> SlowTokens(std::string text);

/// The value of one token.
double SlowEvaluate(std::string token);

/// The values of all tokens of a text.
std::vector<double> SlowNumbers(const std::string& text);

/// The physical lines of a text, each with its newline, cut where a reader cuts them: a NUL ends its line.
std::vector<std::string> SlowLines(const std::string& text);

}  // namespace satwecvt
