#pragma once

#include "driver/ConversionReport.h"
#include "ui/console/ConsoleInterface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

/// All that the program knows of a conversion when it has ended.
struct CConversionOutcome {
    std::int32_t result = 0;       // the library's: 0 written, 1 cancelled, -1 failed
    std::string outputPath;        // the model text file; empty unless the result is 0
    std::string logPath;           // the message log
    std::vector<std::string> log;  // its lines
    CConversionReport report;
    CScreenRecord screen;
};

}  // namespace satwecvt
