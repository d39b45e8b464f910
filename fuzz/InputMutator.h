// Changes the text of an input file as one who knows its form: lines, tokens, records and the counts of them. Most
// results can still be read to their end, so that the writers behind the readers meet odd buildings, too.
#pragma once

#include "InputOutline.h"

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace satwecvt {

class CInputMutator {
public:
    enum class EFile { Structure, Load };

    explicit CInputMutator(unsigned int seed) : random(seed) {}

    /// A number from 0 to `count` - 1.
    std::size_t Below(std::size_t count) { return random() % count; }

    /// A text with one change.
    std::string Mutate(const std::string& text, EFile file);

private:
    void DuplicateLine();
    void DeleteLine();
    void SwapLines();

    void ReplaceToken();
    void ChangeCount();
    void AddRecord();
    void TakeRecord();
    void Step(std::size_t line, std::size_t token, int step);
    const CRecordBlock* SomeBlock();

    void SetToken(std::size_t line, std::size_t token, const std::string& by);
    std::string SomeNumber();

    std::minstd_rand random;
    std::vector<std::string> lines;
    std::vector<CRecordBlock> blocks;
};

}  // namespace satwecvt
