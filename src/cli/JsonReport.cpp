#include "cli/JsonReport.h"

#include "cli/Counts.h"

#include <nlohmann/json.hpp>

namespace satwecvt {

std::string JsonReport(const CConversionOutcome& outcome)
{
    using Json = nlohmann::ordered_json;
    Json counts = Json::object();
    for (const CKindCount& count : CountsByKind(outcome.report)) {
        counts[count.kind] = {{"read", count.read ? Json(*count.read) : Json(nullptr)}, {"written", count.written}};
    }
    const Json report = {
        {"schema", 1},
        {"version", SATWECVT_VERSION},
        {"result", outcome.result},
        {"output", outcome.outputPath.empty() ? Json(nullptr) : Json(outcome.outputPath)},
        {"messages", outcome.screen.messages},
        {"stages", outcome.screen.stages},
        {"lines",
         {{"total", outcome.screen.totalLines}, {"read", outcome.report.lineCounter}, {"steps", outcome.screen.steps}}},
        {"counts", counts},
        {"log", outcome.log},
    };
    constexpr int kIndent = 2;
    return report.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace satwecvt
