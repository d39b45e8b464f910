#include "reader/MemberReader.h"

#include "reader/RecordParsing.h"

#include <array>
#include <vector>

namespace satwecvt {

int CMemberReader::ReadMembers(T_SATWE_STIF_D& story)
{
    const bool goesOn = ReadBeams(story) != 0 && ReadColumns(story) != 0 && ReadBraces(story) != 0 &&
                        ReadWalls(story) != 0 && ReadPlates(story) != 0;
    return goesOn ? 1 : 0;
}

/// Reads the lines of members that may have an extra line each. Every line has to tell at once whether an extra line
/// follows, so fewer than three numbers fail on the spot. A count of 0 reads nothing; a negative one never ends the
/// block.
template <class Record, class ParseLine, class ParseExtraLine, class Store>
int CMemberReader::ReadWithExtraLines(std::int32_t count, std::string_view what, ParseLine parseLine,
                                      ParseExtraLine parseExtraLine, Store store)
{
    const CLineNumbers& numbers = reader.Numbers();
    for (std::int64_t i = 0; i != count; ++i) {
        if (reader.ReadNumbers() == 0) {
            return 0;
        }
        const bool hasExtraLine = HasExtraLine(numbers, what);
        const std::int32_t key = numbers.Integer(1);
        const std::int32_t line = reader.Line();
        Record record;
        reader.ParseRecord([&] {
            record = parseLine(numbers);
            record.line = line;
        });
        if (hasExtraLine) {
            if (reader.ReadNumbers() == 0) {
                return 0;
            }
            reader.ParseRecord([&] { parseExtraLine(numbers, record); });
        }
        reader.ParseRecord([&] { store(key, record); });
    }
    reader.End();
    return 1;
}

int CMemberReader::ReadBeams(T_SATWE_STIF_D& story)
{
    reader.Begin("beam lines");
    const auto parseExtraLine = [&](const CLineNumbers& numbers, T_SATWE_STBM_D& /*beam*/) {
        story.beamExtras.push_back({memberSeq, ParseBeamExtra(numbers)});
    };
    const auto store = [&](std::int32_t key, T_SATWE_STBM_D& beam) {
        beam.seq = TakeSeq(1);
        story.beams.Insert(key, beam);
    };
    story.beams.Reserve(reader.Lines().MostRecords(story.beamCount));
    const int answer = ReadWithExtraLines<T_SATWE_STBM_D>(story.beamCount, "a beam", ParseBeam, parseExtraLine, store);
    story.beams.SortByKey();
    return answer;
}

int CMemberReader::ReadColumns(T_SATWE_STIF_D& story)
{
    reader.Begin("column lines");
    // A column with an extra line is written as two elements: the second number is for its upper piece.
    const auto store = [&](std::int32_t key, T_SATWE_STCL_D& column) {
        const std::int32_t pieces = column.hasExtra != 0 ? 2 : 1;
        column.seq = TakeSeq(pieces);
        story.columns.Insert(key, column);
    };
    story.columns.Reserve(reader.Lines().MostRecords(story.columnCount));
    const int answer =
        ReadWithExtraLines<T_SATWE_STCL_D>(story.columnCount, "a column", ParseColumn, ParseColumnExtra, store);
    story.columns.SortByKey();
    return answer;
}

int CMemberReader::ReadBraces(T_SATWE_STIF_D& story)
{
    reader.Begin("brace lines");
    if (story.braceCount == 0) {
        return 1;
    }
    story.braces.Reserve(reader.Lines().MostRecords(story.braceCount));
    const int answer = reader.ReadLines(story.braceCount, [&] {
        T_SATWE_STBR_D brace = ParseBrace(reader.Numbers());
        brace.seq = TakeSeq(1);
        brace.line = reader.Line();
        story.braces.Insert(reader.Numbers().Integer(1), brace);
    });
    story.braces.SortByKey();
    return answer;
}

/// Walls are read and parsed one by one: a wall that is wrong stops the read where it stands.
int CMemberReader::ReadWalls(T_SATWE_STIF_D& story)
{
    reader.Begin("wall lines");
    story.walls.Reserve(reader.Lines().MostRecords(story.wallCount));
    for (std::int64_t i = 0; i != story.wallCount; ++i) {
        if (reader.ReadNumbers() == 0) {
            return 0;
        }
        std::int32_t secondCount = 0;
        T_SATWE_STWL_D wall = ParseWallLine1(reader.Numbers(), secondCount);
        wall.line = reader.Line();
        const std::int32_t key = reader.Numbers().Integer(1);
        const std::int64_t required = 2 * (std::int64_t{wall.firstCount} + secondCount);
        if (ReadWallPoints(required) == 0) {
            return 0;
        }
        ParseWallPoints(reader.Numbers(), secondCount, wall);
        LookAtWallPoints();
        wall.seq = TakeSeq(1);
        story.walls.Insert(key, wall);
    }
    story.walls.SortByKey();
    return 1;
}

/// Reads the point list of a wall from one line, or from two when the first holds too few numbers. Any other total
/// than the required one stops the read.
int CMemberReader::ReadWallPoints(std::int64_t required)
{
    wallText.clear();
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    CDataLines& lines = reader.Lines();
    const std::vector<double>& points = reader.Numbers().Values();
    if (static_cast<std::int64_t>(points.size()) < required) {
        wallText = lines.Text();
        wallLine = lines.TextLine();
        if (lines.ReadDataLine() == 0 || lines.ParseMoreNumbers(reader.Numbers()) == 0) {
            return 0;
        }
    }
    if (static_cast<std::int64_t>(points.size()) != required) {
        reader.Stop("the wall's point list needs " + std::to_string(required) + " numbers and has " +
                    std::to_string(points.size()));
        return 0;
    }
    return 1;
}

/// Where there are two lines of them, the first is no longer at hand.
void CMemberReader::LookAtWallPoints()
{
    if (!wallText.empty()) {
        CDataLines& lines = reader.Lines();
        const CTextLine secondLine = lines.TextLine();
        const std::array from{CNumberText{wallText, {&wallLine, 1}}, CNumberText{lines.Text(), {&secondLine, 1}}};
        lines.LookAtUse(reader.Numbers(), from);
    }
}

int CMemberReader::ReadPlates(T_SATWE_STIF_D& story)
{
    reader.Begin("plate lines");
    story.plates.Reserve(reader.Lines().MostRecords(story.plateCount));
    const CLineNumbers& numbers = reader.Numbers();
    for (std::int64_t i = 0; i != story.plateCount; ++i) {
        if (reader.ReadNumbers() == 0) {
            return 0;
        }
        numbers.RequireFirst(2, 4, "a plate");
        const std::int32_t line = reader.Line();
        const std::int32_t vertexCount = numbers.Integer(2);
        const bool isWhole = static_cast<std::int64_t>(numbers.Count()) - 4 >= vertexCount;
        if (!isWhole && JoinPlateLines(vertexCount) == 0) {
            return 0;
        }
        reader.ParseRecord([&] {
            T_SATWE_STPL_D plate = ParsePlate(numbers, story.plateVertices);
            // One number per triangle; fewer than two vertices move the counter back.
            plate.seq = TakeSeq(WrappedSum(plate.vertexCount, -2));
            plate.line = line;
            story.plates.Insert(numbers.Integer(1), plate);
        });
        if (!isWhole) {
            const CNumberText from{plateText.Text(), plateLines};
            reader.Lines().LookAtUse(reader.Numbers(), {&from, 1});
        }
    }
    reader.End();
    story.plates.SortByKey();
    return 1;
}

/// Appends lines to the one read last until its numbers, less 4, are as many as the vertices that it announced.
int CMemberReader::JoinPlateLines(std::int32_t vertexCount)
{
    CDataLines& lines = reader.Lines();
    CLineNumbers& numbers = reader.NewNumbers();
    plateText.Start(lines.Text());
    plateLines.assign(1, lines.TextLine());
    do {
        if (lines.ReadDataLine() == 0) {
            return 0;
        }
        plateText.Append(lines.Text());
        plateLines.push_back({plateText.Text().size(), lines.LineNumber()});
        if (plateText.NumberCount() == 0) {  // an assignment tail that took everything
            reader.Stop("a plate without numbers");
            return 0;
        }
    } while (plateText.NumberCount() - 4 < vertexCount);
    return lines.ParseNumbers({plateText.Text(), plateLines}, numbers);
}

/// The element number of the next member, which uses up that many numbers.
std::int32_t CMemberReader::TakeSeq(std::int32_t numbersUsed) noexcept
{
    const std::int32_t seq = memberSeq;
    memberSeq = WrappedSum(memberSeq, numbersUsed);
    return seq;
}

}  // namespace satwecvt
