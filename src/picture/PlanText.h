// Texts on plans. What came from a file can be anything: it is shown as characters that every XML text may have, and
// the plan stays well-formed whatever it says.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

/// A text in UTF-8 as it can be shown: control characters, and bytes that are no UTF-8, stand by their numbers, "\x1B".
std::string ShownText(std::string_view bytes);

/// The end of a shown text behind "...", where the whole is wider than told.
std::string ShownEnd(const std::string& shown, double width);

/// About how wide a shown text is, as a multiple of the height of its letters.
double TextWidth(std::string_view shown) noexcept;

/// Appends a shown text as the content of an XML element.
void AppendXml(std::string& xml, std::string_view shown);

/// A length of the model with at most six digits behind the point, "13.5"; with an exponent above 1e9.
std::string LengthText(double length);

}  // namespace satwecvt
