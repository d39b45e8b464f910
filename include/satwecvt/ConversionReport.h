// What a program can know of a conversion beyond its result and its findings: one tree of plain structs.
#pragma once

#include "satwecvt/Finding.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// The results of a conversion, as the host gets them.
inline constexpr int kWritten = 0;
inline constexpr int kCancelled = 1;
inline constexpr int kFailed = -1;

/// The files of a conversion, as the system takes their names.
struct CConversionPaths {
    std::string structure;
    std::string load;
    std::string model;       // the model text file
    std::string messageLog;  // the message log
};

/// The stages of a conversion, in their order: what the progress window shows.
enum class EStage {
    Read,
    Node,
    Element,
    Material,
    Section,
    Thickness,
    Support,
    BeamEndRelease,
    BeamEndOffset,
    LoadCase,
    StaticLoad,
};

/// The text of a stage, such as "Write Data File : Node"; the window shows it as "!!! %s !!!".
std::string_view StageText(EStage stage) noexcept;

/// What ended a conversion before the model was whole.
struct CFailure {
    CPlace place;        // the line of the input that cannot be converted; no line when it is not about one
    std::string block;   // while reading: what was read, such as "beam lines of story block 2"
    std::string reason;  // in words
    std::string text;    // of the line, where it is at hand; as it stands there or in upper case
};

/// The physical lines of both input files together.
struct CLineFigures {
    std::int32_t total = 0;  // counted beforehand, for the progress
    std::int32_t read = 0;   // asked for
    std::int64_t steps = 0;  // how often the progress window was asked whether to go on
};

/// How many records of each kind the input files held. Records of a block or story that could not be read to its end
/// are not among them.
struct CReadCounts {
    std::int64_t stories = 0;
    std::int64_t sections = 0;  // definitions
    std::int64_t nodes = 0;     // model-level nodes and the stories' nodes
    std::int64_t beams = 0;
    std::int64_t columns = 0;
    std::int64_t braces = 0;
    std::int64_t walls = 0;
    std::int64_t plates = 0;
    std::int64_t nodalLoads = 0;     // load lines of types 11, 12 and 21
    std::int64_t beamLoads = 0;      // load lines of types 1 to 4
    std::int64_t pressureLoads = 0;  // load lines of type 22
    std::int64_t otherLoads = 0;     // load lines of types that have no line in the model
};

/// How much of each kind the model text file and the message log have received.
struct CWrittenCounts {
    std::int64_t stories = 0;  // whose elements were written
    std::int64_t nodes = 0;
    std::int64_t beams = 0;    // element lines
    std::int64_t columns = 0;  // element lines: two for a split column
    std::int64_t braces = 0;   // element lines
    std::int64_t walls = 0;    // element lines
    std::int64_t plates = 0;   // element lines: one for each triangle
    std::int64_t materials = 0;
    std::int64_t sections = 0;
    std::int64_t thicknesses = 0;
    std::int64_t supports = 0;
    std::int64_t releases = 0;
    std::int64_t offsets = 0;
    std::int64_t nodalLoads = 0;     // lines of both load cases
    std::int64_t beamLoads = 0;      // lines of both load cases
    std::int64_t pressureLoads = 0;  // lines of both load cases
    std::int64_t warnings = 0;       // lines of the message log
};

struct CConversionReport {
    int result = kFailed;  // `kWritten` once the model was written
    CConversionPaths paths;
    CLineFigures lines;
    std::vector<std::string> messages;  // that were shown to the user
    std::optional<EStage> lastStage;    // that the progress window has shown, after all before it
    bool isRead = false;                // the reading was complete enough for the writing to begin
    std::optional<CFailure> failure;    // none when the model was written, and when the user cancelled
    CReadCounts read;
    CWrittenCounts written;
    bool hasFileError = false;   // the model text file or the message log is missing or incomplete
    bool hasMessageLog = false;  // the message log is this conversion's
};

}  // namespace satwecvt
