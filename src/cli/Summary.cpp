#include "cli/Summary.h"

#include "cli/Counts.h"
#include "cli/TerminalText.h"
#include "conversion/Utf8Path.h"

#include <filesystem>
#include <iomanip>
#include <ostream>
#include <string>
#include <system_error>

namespace satwecvt {

namespace {

std::string Cell(const std::optional<std::int64_t>& count)
{
    return count ? std::to_string(*count) : "";
}

}  // namespace

void PrintCounts(std::ostream& out, const COutcome& outcome)
{
    const auto printRow = [&](const std::string& kind, const std::string& read, const std::string& converted,
                              const std::string& lost, const std::string& lines) {
        out << std::left << std::setw(15) << kind << std::right << std::setw(10) << read << std::setw(11) << converted
            << std::setw(10) << lost << "   " << lines << "\n";
    };
    printRow("Kind", "read", "converted", "lost", "lines in the model");
    const CLosses losses = CountLosses(outcome.findings);
    for (const CKindCount& count : CountsByKind(outcome.report, &losses)) {
        printRow(count.name, Cell(count.read), Cell(count.converted), Cell(count.lost), std::to_string(count.lines));
    }
}

void PrintSummary(std::ostream& out, const COutcome& outcome)
{
    const CConversionReport& report = outcome.report;
    out << "Model  " << TerminalText(report.paths.model) << "\n";
    out << "Lines  " << report.lines.read << " read of " << report.lines.total << "\n\n";
    PrintCounts(out, outcome);
    std::error_code failed;  // the working folder may be gone: the name has to do then
    const std::string logPath =
        TerminalText(TextOf(std::filesystem::current_path(failed) / PathOf(report.paths.messageLog)));
    out << "\nLog    ";
    if (report.hasMessageLog) {
        out << report.written.warnings << (report.written.warnings == 1 ? " line in " : " lines in ") << logPath
            << "\n";
    } else {
        out << "none: " << logPath << " could not be created\n";
    }
    out << FindingCounts(CountLosses(outcome.findings)) << "\n";
}

}  // namespace satwecvt
