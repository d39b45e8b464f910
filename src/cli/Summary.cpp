#include "cli/Summary.h"

#include "cli/Counts.h"

#include <iomanip>
#include <ostream>

namespace satwecvt {

void PrintSummary(std::ostream& out, const CConversionOutcome& outcome)
{
    out << "Model  " << outcome.outputPath << "\n";
    out << "Lines  " << outcome.report.lineCounter << " read of " << outcome.screen.totalLines << "\n\n";
    out << std::left << std::setw(15) << "Kind" << std::right << std::setw(10) << "read" << std::setw(10) << "written"
        << "\n";
    for (const CKindCount& count : CountsByKind(outcome.report)) {
        out << std::left << std::setw(15) << count.kind << std::right << std::setw(10)
            << (count.read ? std::to_string(*count.read) : "") << std::setw(10) << count.written << "\n";
    }
    out << "\nLog    ";
    if (outcome.report.hasMessageFile) {
        out << outcome.report.written.warnings << (outcome.report.written.warnings == 1 ? " line in " : " lines in ")
            << outcome.logPath << "\n";
    } else {
        out << "none: " << outcome.logPath << " could not be created\n";
    }
}

}  // namespace satwecvt
