// A building of two stories with a record of every kind and form, for tests that cut, bend or fail what they convert.
// It writes every block of the model text file and every warning of the message log.
//
// Two properties that the tests count on: the structure file is cut short wherever its last byte is missing, since a
// corner of the last plate goes with it; and no load line becomes one that fails when its end is cut off.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// The structure file.
std::string SmallStructure();

/// The load file.
std::string SmallLoads();

/// How many physical lines a text has whose last line ends with a newline.
std::int32_t LineCount(std::string_view text);

/// The lines of a text, each with its newline.
std::vector<std::string> SplitLines(std::string_view text);

/// Lines put together again.
std::string JoinLines(const std::vector<std::string>& lines);

/// The first lines of a text that has at least so many.
std::string FirstLines(std::string_view text, std::int64_t count);

/// A text with every occurrence of a piece replaced; throws when there is none.
std::string Replaced(std::string_view text, std::string_view piece, std::string_view by);

}  // namespace satwecvt
