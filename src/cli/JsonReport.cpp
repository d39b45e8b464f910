#include "cli/JsonReport.h"

#include "cli/Counts.h"
#include "conversion/Failure.h"
#include "text/TextBuffer.h"
#include "writer/MessageText.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace satwecvt {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kSchema = 2;

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

/// The lines of the message log, as the findings make them; none when there is no log of this conversion.
std::vector<std::string> LogLines(const COutcome& outcome)
{
    std::vector<std::string> lines;
    if (!outcome.isKept || !outcome.report.hasMessageLog) {
        return lines;
    }
    for (const CFinding& finding : outcome.told) {
        CTextBuffer message;
        if (WriteMessage(message, finding)) {
            lines.emplace_back(message.Text().substr(0, message.Text().size() - 1));
        }
    }
    return lines;
}

template <class Value>
Json OrNull(const std::optional<Value>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

Json CountsJson(const COutcome& outcome)
{
    const CLosses losses = CountLosses(outcome.findings);
    Json counts = Json::object();
    for (const CKindCount& count : CountsByKind(outcome.report, outcome.IsWhole() ? &losses : nullptr)) {
        counts[count.kind] = {{"read", OrNull(count.read)},
                              {"converted", OrNull(count.converted)},
                              {"lost", OrNull(count.lost)},
                              {"lines", count.lines}};
    }
    return counts;
}

/// Adds where something stands, as far as it is in a file and in a line.
void AddPlace(Json& object, const CConversionPaths& paths, const CPlace& place)
{
    if (place.source != ESource::Model) {
        object["file"] = place.source == ESource::StructureFile ? paths.structure : paths.load;
    }
    if (place.line > 0) {
        object["line"] = place.line;
    }
}

Json FindingJson(const CConversionPaths& paths, const CFinding& finding)
{
    Json object = {{"code", CodeName(finding.code)}, {"severity", SeverityName(finding.severity)}};
    AddPlace(object, paths, finding.place);
    if (finding.object != EObject::None) {
        object["kind"] = ObjectName(finding.object);
    }
    const auto add = [&](const char* name, const std::optional<std::int32_t>& value) {
        if (value) {
            object[name] = *value;
        }
    };
    add("story", finding.story);
    add("storyNo", finding.storyNo);
    add("key", finding.key);
    add("element", finding.element);
    add("loadCase", finding.loadCase);
    object["text"] = FindingText(finding);
    return object;
}

Json FindingsJson(const COutcome& outcome)
{
    Json findings = Json::array();
    for (const CFinding& finding : outcome.findings) {
        findings.push_back(FindingJson(outcome.report.paths, finding));
    }
    return findings;
}

Json ForceJson(const CForceSum& sum)
{
    return {{"count", sum.count}, {"fx", sum.fx}, {"fy", sum.fy}, {"fz", sum.fz}};
}

Json LoadsJson(const COutcome& outcome)
{
    if (!outcome.loads) {
        return nullptr;
    }
    Json loads = Json::array();
    for (const CBalanceRow& row : *outcome.loads) {
        loads.push_back({{"story", OrNull(row.story)},
                         {"case", row.loadCase == 0 ? "dead" : "live"},
                         {"read", ForceJson(row.read)},
                         {"model", ForceJson(row.model)},
                         {"lost", ForceJson(row.lost)},
                         {"notSummed", row.notSummed},
                         {"holds", row.Holds()}});
    }
    return loads;
}

Json FailureJson(const CConversionReport& report)
{
    if (!report.failure) {
        return nullptr;
    }
    Json failure = Json::object();
    AddPlace(failure, report.paths, report.failure->place);
    failure["text"] = FailureSentence(report);
    return failure;
}

Json OverviewJson(const std::optional<COverview>& overview)
{
    if (!overview) {
        return nullptr;
    }
    Json object = {{"stories", overview->stories}};
    if (overview->hasNodes) {
        object["x"] = {overview->x.from, overview->x.to};
        object["y"] = {overview->y.from, overview->y.to};
        object["z"] = {overview->z.from, overview->z.to};
    }
    return object;
}

}  // namespace

std::string JsonReport(const COutcome& outcome, EExitCode exitCode, EJsonLayout layout)
{
    const CConversionReport& about = outcome.report;
    const Json report = {
        {"schema", kSchema},
        {"version", SATWECVT_VERSION},
        {"structure", about.paths.structure},
        {"load", about.paths.load},
        {"exitCode", static_cast<int>(exitCode)},
        {"result", about.result},
        {"output", outcome.isKept ? Json(about.paths.model) : Json(nullptr)},
        {"failure", FailureJson(about)},
        {"messages", about.messages},
        {"stages", StageTexts(about)},
        {"lines", {{"total", about.lines.total}, {"read", about.lines.read}, {"steps", about.lines.steps}}},
        {"overview", OverviewJson(outcome.overview)},
        {"counts", CountsJson(outcome)},
        {"loads", LoadsJson(outcome)},
        {"findings", FindingsJson(outcome)},
        {"log", LogLines(outcome)},
    };
    const int indent = layout == EJsonLayout::Indented ? 2 : -1;
    return report.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace satwecvt
