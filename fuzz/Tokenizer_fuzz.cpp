// Lines through the tokenizer, and through the quick way for usual lines, against the slow tokenizer.
#include "Finding.h"
#include "FuzzTarget.h"
#include "SlowTokenizer.h"
#include "lines/PlainLine.h"
#include "lines/StrParser.h"

#include <cstddef>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

void ExpectSame(const std::vector<double>& expected, const std::vector<double>& actual, const std::string& line,
                std::string_view way)
{
    bool isSame = expected.size() == actual.size();
    for (std::size_t i = 0; isSame && i < expected.size(); ++i) {
        isSame = IsSameNumber(expected[i], actual[i]);
    }
    if (!isSame) {
        Fail(std::string(way) + " has other numbers for '" + Printable(line) + "'");
    }
}

void CheckPlainLine(const std::string& line)
{
    std::vector<double> numbers{1.0, 2.0};
    if (!ReadPlainLine(line, numbers)) {
        return;
    }
    std::string upper = line;
    if (!SlowCheckLine(upper)) {
        Fail("the plain line '" + Printable(line) + "' is no data line");
    }
    ExpectSame(SlowNumbers(upper), numbers, line, "ReadPlainLine");
}

void CheckParser(const std::string& line)
{
    std::string expectedLine = line;
    const bool isData = SlowCheckLine(expectedLine);
    std::string actualLine = line;
    const int answer = CStrParser::CheckLine(actualLine);
    if (answer != (isData ? 1 : 0) || expectedLine != actualLine) {
        Fail("CheckLine is wrong about '" + Printable(line) + "'");
    }

    const std::vector<double> expected = SlowNumbers(expectedLine);
    std::vector<double> actual;
    const int hasNumbers = CStrParser::ParseNumbers(expectedLine, actual);
    ExpectSame(expected, actual, expectedLine, "ParseNumbers");
    if (hasNumbers != (expected.empty() ? 0 : 1)) {
        Fail("ParseNumbers answers wrong for '" + Printable(expectedLine) + "'");
    }
    for (const std::string& token : SlowTokens(expectedLine)) {
        if (!IsSameNumber(SlowEvaluate(token), CStrParser::EvaluateNumber(token))) {
            Fail("EvaluateNumber is wrong about '" + Printable(token) + "'");
        }
    }
}

}  // namespace
}  // namespace satwecvt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (const std::string& line : satwecvt::SlowLines(satwecvt::TextOf(data, size))) {
        satwecvt::CheckPlainLine(line);
        satwecvt::CheckParser(line);
    }
    return 0;
}
