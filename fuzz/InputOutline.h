// Where the records of an input file stand, and the counts that announce them, so that a mutator can add or take a
// record and keep its count right. The files may be damaged: the outline then ends where the file makes no sense.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace satwecvt {

struct CLineRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The records that one count announces.
struct CRecordBlock {
    std::size_t countLine = 0;
    std::size_t countToken = 0;  // counted from 0
    int kind = 0;                // blocks of one kind hold the same records
    std::vector<CLineRange> records;
    bool isComplete = false;  // as many as announced
};

std::vector<CRecordBlock> OutlineStructure(const std::vector<std::string>& lines);
std::vector<CRecordBlock> OutlineLoads(const std::vector<std::string>& lines);

}  // namespace satwecvt
