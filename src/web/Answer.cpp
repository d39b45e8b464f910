#include "web/Answer.h"

#include "conversion/Failure.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

void Add(CColumnBytes& answer, std::string_view name, std::int32_t value)
{
    answer.Add(name, std::span<const std::int32_t>(&value, 1));
}

void Add(CColumnBytes& answer, std::string_view name, const std::string& text)
{
    answer.Add(name, std::span<const std::string>(&text, 1));
}

/// What a person can still read beside the failure.
constexpr std::size_t kMostRemarks = 10;

void AddRemarks(CColumnBytes& answer, const COutcome& outcome)
{
    std::vector<std::int32_t> sources;
    std::vector<std::int32_t> lines;
    std::vector<std::string> texts;
    for (const CFinding& finding : outcome.findings) {
        if (!outcome.IsWhole() && finding.severity != ESeverity::Note && texts.size() < kMostRemarks) {
            sources.push_back(static_cast<std::int32_t>(finding.place.source));
            lines.push_back(static_cast<std::int32_t>(finding.place.line));
            texts.push_back(FindingText(finding));
        }
    }
    answer.Add("remark.source", sources);
    answer.Add("remark.line", lines);
    answer.Add("remark.text", texts);
}

}  // namespace

CColumnBytes AnswerOf(const COutcome& outcome, const CConversionPaths& saved)
{
    const CConversionReport& report = outcome.report;
    const CPlace place = report.failure ? report.failure->place : CPlace{};
    CColumnBytes answer;
    Add(answer, "answer.isWhole", report.failure ? 0 : 1);
    Add(answer, "answer.hasLog", report.hasMessageLog ? 1 : 0);
    Add(answer, "answer.source", static_cast<std::int32_t>(place.source));
    Add(answer, "answer.line", static_cast<std::int32_t>(place.line));
    Add(answer, "answer.lacksMemory", report.failure && report.failure->reason == kOutOfMemory ? 1 : 0);
    Add(answer, "answer.failure", report.failure ? FailureSentence(report) : "");
    AddRemarks(answer, outcome);
    Add(answer, "answer.modelName", saved.model);
    Add(answer, "answer.logName", saved.messageLog);
    Add(answer, "answer.result", report.result);
    answer.Add("answer.messages", report.messages);
    Add(answer, "answer.linesRead", report.lines.read);
    Add(answer, "answer.steps", static_cast<std::int32_t>(report.lines.steps));
    return answer;
}

}  // namespace satwecvt
