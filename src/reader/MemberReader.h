// The member blocks of a story: beams, columns, braces, walls and plates, in this order. Every member takes its
// element number from one counter that runs through the whole structure file.
#pragma once

#include "model/StoryRecord.h"
#include "reader/BlockReader.h"
#include "reader/PlateText.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class CMemberReader {
public:
    explicit CMemberReader(CBlockReader& blockReader) : reader(blockReader) {}

    /// Reads all member blocks of a story, whose record holds the counts of story line 4. Returns 1 to go on, 0 when
    /// the read has to stop.
    [[nodiscard]] int ReadMembers(T_SATWE_STIF_D& story);

private:
    [[nodiscard]] int ReadBeams(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadColumns(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadBraces(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadWalls(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadPlates(T_SATWE_STIF_D& story);

    template <class Record, class ParseLine, class ParseExtraLine, class Store>
    [[nodiscard]] int ReadWithExtraLines(std::int32_t count, std::string_view what, ParseLine parseLine,
                                         ParseExtraLine parseExtraLine, Store store);
    [[nodiscard]] int ReadWallPoints(std::int64_t required);
    void LookAtWallPoints();
    [[nodiscard]] int JoinPlateLines(std::int32_t vertexCount);
    std::int32_t TakeSeq(std::int32_t numbersUsed) noexcept;

    CBlockReader& reader;
    CPlateText plateText;
    std::vector<CTextLine> plateLines;  // of that text
    std::string wallText;               // the first of two lines of a wall's points
    CTextLine wallLine{};
    std::int32_t memberSeq = 1;
};

}  // namespace satwecvt
