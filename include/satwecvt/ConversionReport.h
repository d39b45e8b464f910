#pragma once

#include "reader/ReadStop.h"
#include "writer/WrittenCounts.h"

#include <cstdint>
#include <optional>
#include <string>

namespace satwecvt {

class CSatweModel;

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
    std::int64_t otherLoads = 0;     // load lines that no writer takes
};

/// What a program can tell of a conversion beyond its result.
struct CConversionReport {
    std::int32_t lineCounter = 0;       // physical input lines asked for, over both files together
    std::optional<CReadStop> readStop;  // where an input file stopped before its end was due
    bool isRead = false;                // the reading was complete enough for the writing to begin
    std::string failure;                // what ended the conversion, when it was bad content or memory
    CReadCounts read;
    CWrittenCounts written;
    bool hasFileError = false;    // the model text file or the message log is missing or incomplete
    bool hasMessageFile = false;  // the message log in the working folder is this conversion's
};

/// Counts the records that a model holds.
CReadCounts CountRecords(const CSatweModel& model);

}  // namespace satwecvt
