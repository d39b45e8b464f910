#pragma once

namespace satwecvt {

/// The exit codes of the program.
enum class EExitCode : int {
    Written = 0,
    NotConverted = 1,  // an input could not be opened or read, or its content does not make a model
    WrongUsage = 2,
    OutputIncomplete = 4,  // the model text file, the message log or the report could not be written completely
    Cancelled = 130,
};

}  // namespace satwecvt
