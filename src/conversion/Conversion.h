// One conversion with everything that the program tells of it: its findings and those of a look at the model, the
// building at a glance, and the balance of its loads.
#pragma once

#include "conversion/Outcome.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"

namespace satwecvt {

/// Whether the loads of the model are held against those of the input, which takes as long as half of a conversion.
enum class EBalance { Wanted, Unwanted };

/// When the model is looked at: in a second thread while it is written, or when that is done, where many conversions
/// share the cores.
enum class ELook { BesideTheWriting, BehindTheWriting };

/// Converts a pair of files, with the outputs in `files`, from which the model is read back for its balance. Whatever
/// goes wrong is the failure of the report.
COutcome ConvertPair(CUserInterface& userInterface, CFileSystem& files, const CConversionPaths& paths, EBalance balance,
                     ELook look);

}  // namespace satwecvt
