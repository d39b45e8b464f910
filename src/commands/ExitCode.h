#pragma once

namespace satwecvt {

/// The exit codes of the program.
enum class EExitCode : int {
    Written = 0,
    NotConverted = 1,  // an input could not be opened or read, or its content does not make a model
    WrongUsage = 2,
    Refused = 3,           // --strict: something was lost or is doubtful; nothing was written
    OutputIncomplete = 4,  // the model, the log or the report could not be written completely
    Cancelled = 130,       // as a shell tells of Ctrl-C
};

}  // namespace satwecvt
