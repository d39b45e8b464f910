// Conversions of texts in memory, with what holds for every one of them checked on the way: the inputs are unchanged,
// nothing stays open, no window is left, and every line that was asked for was told to the progress window.
#pragma once

#include "support/Conversion.h"
#include "support/ScriptedInterface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

using Messages = std::vector<std::string>;

struct CAnswer {
    CConversionResult conversion;
    CScriptedInterface screen;
};

CAnswer Convert(const std::string& structure, const std::string& load);

/// The reading failed: no output was made, and these messages were shown.
void ExpectNotRead(const CAnswer& answer, const Messages& messages = {});

/// Both outputs were made without a message.
void ExpectWritten(const CAnswer& answer);

/// Both were written, with the same bytes.
void ExpectSameFiles(const CAnswer& expected, const CAnswer& actual);

/// How many load lines were read.
std::int64_t LoadCount(const CAnswer& answer);

/// A conversion of the small building gave what it always gives.
void ExpectSmallBuilding(const CConversionResult& conversion);
CConversionResult ConvertSmallBuilding();

}  // namespace satwecvt
