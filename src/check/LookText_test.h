// Findings as short texts, for comparison.
#pragma once

#include "check/ModelLook.h"

#include "doubles/CharConversion.h"

#include <array>
#include <string>
#include <vector>

namespace satwecvt {

/// "code line object key of story/storyNo, element: value value"; what is not there is left out, and so are zeros
/// behind the last value that is not 0.
inline std::string ShortText(const CFinding& finding)
{
    std::string text = std::string(CodeName(finding.code)) + " " + std::to_string(finding.place.line) + " " +
                       std::string(ObjectName(finding.object));
    text += finding.key ? " " + std::to_string(*finding.key) : "";
    text += finding.story ? " of " + std::to_string(*finding.story) : "";
    text += finding.storyNo ? "/" + std::to_string(*finding.storyNo) : "";
    text += finding.element ? ", " + std::to_string(*finding.element) : "";
    std::size_t values = finding.values.size();
    while (values > 0 && finding.values[values - 1] == 0.0) {
        --values;
    }
    for (std::size_t i = 0; i < values; ++i) {
        std::array<char, 32> number{};
        const auto end = ToChars(number.data(), number.data() + number.size(), finding.values[i]).ptr;
        text += (i == 0 ? ": " : " ") + std::string(number.data(), end);
    }
    return text;
}

inline std::vector<std::string> LookTexts(const CSatweModel& model)
{
    CFindingList list;
    LookAtModel(model, list);
    std::vector<std::string> texts;
    for (const CFinding& finding : list.Findings()) {
        texts.push_back(ShortText(finding));
    }
    return texts;
}

}  // namespace satwecvt
