#pragma once

#include "file/MemoryFiles_test.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/FileSystem.h"
#include "support/ScriptedInterface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

/// What one conversion in the working folder came to.
struct CConversionResult {
    int result = 0;
    CConversionReport report;
    std::optional<std::string> model;       // structure.vkm
    std::optional<std::string> messageLog;  // satwecvt.msg
    std::vector<CFinding> findings;
};

/// Why a conversion failed; empty when it did not.
std::string FailureReason(const CConversionResult& conversion);

/// The finding of a load file that was not read to its end; none when it was.
std::optional<CFinding> EndsEarly(const CConversionResult& conversion);

/// Converts structure.sat and load.sat of the working folder.
CConversionResult ConvertWorkingFolder(CScriptedInterface& screen, CFileSystem& system = CFileSystem::System());

/// Writes both input files into the working folder and converts them.
CConversionResult ConvertTexts(const std::string& structure, const std::string& load, CScriptedInterface& screen);

/// Converts structure.sat and load.sat of files in memory.
CConversionResult ConvertMemoryFiles(CScriptedInterface& screen, CMemoryFiles& system);

}  // namespace satwecvt
