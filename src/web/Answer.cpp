#include "web/Answer.h"

#include "conversion/Failure.h"

#include <cstdint>
#include <string_view>

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

}  // namespace

CColumnBytes AnswerOf(const CConversionReport& report, const CConversionPaths& saved)
{
    const CPlace place = report.failure ? report.failure->place : CPlace{};
    CColumnBytes answer;
    Add(answer, "answer.isWhole", report.failure ? 0 : 1);
    Add(answer, "answer.hasLog", report.hasMessageLog ? 1 : 0);
    Add(answer, "answer.source", static_cast<std::int32_t>(place.source));
    Add(answer, "answer.line", static_cast<std::int32_t>(place.line));
    Add(answer, "answer.failure", report.failure ? FailureSentence(report) : "");
    Add(answer, "answer.modelName", saved.model);
    Add(answer, "answer.logName", saved.messageLog);
    Add(answer, "answer.result", report.result);
    answer.Add("answer.messages", report.messages);
    Add(answer, "answer.linesRead", report.lines.read);
    Add(answer, "answer.steps", static_cast<std::int32_t>(report.lines.steps));
    return answer;
}

}  // namespace satwecvt
