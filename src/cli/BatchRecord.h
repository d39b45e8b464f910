// The record of a batch: the report of each pair as one line of JSON, in the order of the pairs.
//
// It is written in place and line by line, each with one call as soon as its turn has come, unlike other outputs: the
// record of a night must not vanish with the program. A kill leaves all lines up to it, whole but for the last at most;
// an older record goes when the first pair begins, whose models are then being replaced.
#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

class CBatchRecord {
public:
    /// `path` is empty for no record, "-" for stdout.
    explicit CBatchRecord(std::string path);
    ~CBatchRecord();
    CBatchRecord(const CBatchRecord&) = delete;
    CBatchRecord& operator=(const CBatchRecord&) = delete;

    bool IsWanted() const noexcept { return !path.empty(); }
    bool IsStdout() const noexcept { return path == "-"; }

    /// Opens the file, which is emptied. Says so when that cannot be, and returns false.
    bool Open();

    /// Adds lines. What cannot be written is told once, and nothing is written behind it.
    void Write(std::string_view lines);

    /// Says so when the end of the file could not be kept. Returns whether the record is whole.
    bool Close();

private:
    void Fail(int cause);

    std::string path;
    int file = -1;
    bool isWhole = true;
};

}  // namespace satwecvt
