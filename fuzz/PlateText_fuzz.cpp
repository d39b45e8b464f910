// The lines of one plate, joined one after the other: the count that goes on with each line against the tokens of the
// whole text.
#include "Finding.h"
#include "FuzzTarget.h"
#include "SlowTokenizer.h"
#include "reader/PlateText.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace satwecvt {
namespace {

void CheckCount(const CPlateText& plate, const std::string& joined)
{
    const std::size_t expected = SlowTokens(joined).size();
    if (plate.NumberCount() != static_cast<std::int64_t>(expected)) {
        Fail(std::to_string(plate.NumberCount()) + " numbers, not " + std::to_string(expected) + ", in '" +
             Printable(joined) + "'");
    }
    // Lines behind an assignment tail add nothing, and may be left out.
    if (SlowTokens(std::string(plate.Text())) != SlowTokens(joined)) {
        Fail("'" + Printable(plate.Text()) + "' has other numbers than '" + Printable(joined) + "'");
    }
}

/// Other than data lines never reach a plate.
void JoinLines(const std::string& text)
{
    CPlateText plate;
    std::string joined;
    for (std::string& line : SlowLines(text)) {
        if (!SlowCheckLine(line)) {
            continue;
        }
        if (joined.empty()) {
            plate.Start(line);
        } else {
            plate.Append(line);
        }
        joined += line;
        CheckCount(plate, joined);
    }
}

}  // namespace
}  // namespace satwecvt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    satwecvt::JoinLines(satwecvt::TextOf(data, size));
    return 0;
}
