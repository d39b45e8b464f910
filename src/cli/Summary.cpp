#include "cli/Summary.h"

#include "cli/Counts.h"

#include <filesystem>
#include <iomanip>
#include <ostream>
#include <system_error>

namespace satwecvt {

void PrintSummary(std::ostream& out, const COutcome& outcome)
{
    const CConversionReport& report = outcome.report;
    out << "Model  " << report.paths.model << "\n";
    out << "Lines  " << report.lines.read << " read of " << report.lines.total << "\n\n";
    out << std::left << std::setw(15) << "Kind" << std::right << std::setw(10) << "read" << std::setw(10) << "written"
        << "\n";
    for (const CKindCount& count : CountsByKind(report)) {
        out << std::left << std::setw(15) << count.kind << std::right << std::setw(10)
            << (count.read ? std::to_string(*count.read) : "") << std::setw(10) << count.written << "\n";
    }
    std::error_code failed;  // the working folder may be gone: the name has to do then
    const std::string logPath = (std::filesystem::current_path(failed) / report.paths.messageLog).string();
    out << "\nLog    ";
    if (report.hasMessageLog) {
        out << report.written.warnings << (report.written.warnings == 1 ? " line in " : " lines in ") << logPath
            << "\n";
    } else {
        out << "none: " << logPath << " could not be created\n";
    }
}

}  // namespace satwecvt
