#include "cli/Outcome.h"

#include "text/TextBuffer.h"
#include "writer/MessageText.h"

namespace satwecvt {

std::vector<std::string> LogLines(const COutcome& outcome)
{
    std::vector<std::string> lines;
    if (!outcome.report.hasMessageLog || outcome.report.hasFileError) {
        return lines;
    }
    for (const CFinding& finding : outcome.findings.Findings()) {
        CTextBuffer message;
        if (WriteMessage(message, finding)) {
            lines.emplace_back(message.Text().substr(0, message.Text().size() - 1));
        }
    }
    return lines;
}

}  // namespace satwecvt
