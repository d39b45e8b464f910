// One conversion with everything that the program tells of it: its findings and those of a look at the model, the
// building at a glance, and the balance of its loads.
#pragma once

#include "cli/Outcome.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"

#include <functional>
#include <string>

namespace satwecvt {

/// Gives the text of the model that was just written. Only the balance needs it, which takes as long as half of a
/// conversion: an empty function stands for "no balance".
using CModelText = std::function<std::string()>;

/// When the model is looked at: in a second thread while it is written, or when that is done, where many conversions
/// share the cores.
enum class ELook { BesideTheWriting, BehindTheWriting };

/// Converts a pair of files, with the outputs in `files`. Whatever goes wrong is the failure of the report.
COutcome ConvertPair(CUserInterface& userInterface, CFileSystem& files, const CConversionPaths& paths,
                     const CModelText& modelText, ELook look);

/// The bytes of a file. Throws CFileError.
std::string BytesOf(CFileSystem& files, const std::string& path);

}  // namespace satwecvt
