// The two files of a conversion in one input of the fuzzer.
#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

struct CConversionInput {
    std::string structure;
    std::string load;

    static constexpr std::string_view kSeparator = "%% load file\n";

    /// What stands in front of the separator is the structure file, what stands behind it the load file; without a
    /// separator the load file is empty.
    static CConversionInput Split(std::string_view text)
    {
        const std::size_t at = text.find(kSeparator);
        if (at == std::string_view::npos) {
            return {std::string(text), ""};
        }
        return {std::string(text.substr(0, at)), std::string(text.substr(at + kSeparator.size()))};
    }

    std::string Joined() const { return structure + std::string(kSeparator) + load; }
};

}  // namespace satwecvt
