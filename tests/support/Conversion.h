#pragma once

#include "driver/ConversionReport.h"
#include "file/FileSystem.h"
#include "file/MemoryFiles_test.h"
#include "support/ScriptedInterface.h"

#include <cstdint>
#include <optional>
#include <string>

namespace satwecvt {

/// What one conversion in the working folder came to.
struct CConversionResult {
    int result = 0;
    CConversionReport report;
    std::optional<std::string> model;       // structure.vkm
    std::optional<std::string> messageLog;  // satwecvt.msg
};

/// Converts structure.sat and load.sat of the working folder.
CConversionResult ConvertWorkingFolder(CScriptedInterface& screen, CFileSystem& system = CFileSystem::System());

/// Writes both input files into the working folder and converts them.
CConversionResult ConvertTexts(const std::string& structure, const std::string& load, CScriptedInterface& screen);

/// Converts structure.sat and load.sat of files in memory.
CConversionResult ConvertMemoryFiles(CScriptedInterface& screen, CMemoryFiles& system);

}  // namespace satwecvt
