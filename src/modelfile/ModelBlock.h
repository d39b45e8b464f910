// What the blocks of a model text have in common: a keyword's line, comment lines, lines of data, an empty line.
#pragma once

#include "modelfile/ModelFile.h"
#include "modelfile/ModelText.h"

#include <cstddef>
#include <string_view>

namespace satwecvt {

struct CBlockForm {
    std::string_view keywordLine;
    std::size_t comments = 0;  // lines of them
    std::string_view noun;     // what its lines hold
    bool canBeEmpty = false;   // the header can stand alone
};

/// Reads a block, giving each line of data to `readLine`, which returns whether it is one. Returns false, and takes
/// nothing, where the block is not what comes next.
template <typename TReadLine>
bool ReadBlock(CModelText& text, const CBlockForm& form, TReadLine readLine)
{
    if (!text.TakeHeader(form.keywordLine, form.comments)) {
        return false;
    }
    bool isEmpty = true;
    for (std::string_view line = text.Take(); !line.empty(); line = text.Take()) {
        if (!readLine(line)) {
            text.Refuse(form.noun);
        }
        isEmpty = false;
    }
    if (isEmpty && !form.canBeEmpty) {
        text.Fail("the block is empty");
    }
    return true;
}

/// Reads a block that has to be there.
template <typename TReadLine>
void ReadNeededBlock(CModelText& text, const CBlockForm& form, TReadLine readLine)
{
    if (!ReadBlock(text, form, readLine)) {
        text.Expect(form.keywordLine);
    }
}

// The blocks in their order. Some are left out where they would hold nothing.

void ReadNodes(CModelText& text, CModelFile& model);
void ReadElements(CModelText& text, CModelFile& model);
void ReadMaterials(CModelText& text, CModelFile& model);
void ReadSections(CModelText& text, CModelFile& model);
void ReadThicknesses(CModelText& text, CModelFile& model);
void ReadSupports(CModelText& text, CModelFile& model);
void ReadReleases(CModelText& text, CModelFile& model);
void ReadOffsets(CModelText& text, CModelFile& model);
void ReadLoadCases(CModelText& text, CModelFile& model);

/// Reads the loads of all cases up to the end of the text.
void ReadLoads(CModelText& text, CModelFile& model);

}  // namespace satwecvt
