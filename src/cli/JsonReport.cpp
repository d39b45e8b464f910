#include "cli/JsonReport.h"

#include "cli/Counts.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace satwecvt {

namespace {

/// The status texts of the progress window up to the last one.
std::vector<std::string> StageTexts(const CConversionReport& report)
{
    std::vector<std::string> texts;
    if (report.lastStage) {
        for (auto stage = EStage::Read; stage <= *report.lastStage;
             stage = static_cast<EStage>(static_cast<int>(stage) + 1)) {
            texts.push_back("!!! " + std::string(StageText(stage)) + " !!!");
        }
    }
    return texts;
}

}  // namespace

std::string JsonReport(const COutcome& outcome)
{
    using Json = nlohmann::ordered_json;
    const CConversionReport& about = outcome.report;
    Json counts = Json::object();
    for (const CKindCount& count : CountsByKind(about)) {
        counts[count.kind] = {{"read", count.read ? Json(*count.read) : Json(nullptr)}, {"written", count.written}};
    }
    const Json report = {
        {"schema", 1},
        {"version", SATWECVT_VERSION},
        {"result", about.result},
        {"output", about.result == kWritten ? Json(about.paths.model) : Json(nullptr)},
        {"messages", about.messages},
        {"stages", StageTexts(about)},
        {"lines", {{"total", about.lines.total}, {"read", about.lines.read}, {"steps", about.lines.steps}}},
        {"counts", counts},
        {"log", LogLines(outcome)},
    };
    constexpr int kIndent = 2;
    return report.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace satwecvt
