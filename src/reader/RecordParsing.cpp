#include "reader/RecordParsing.h"

#include <limits>
#include <stdexcept>

namespace satwecvt {

T_SATWE_SECT_D ParseSectionLineA(const CLineNumbers& numbers)
{
    numbers.Require(10, "the first line of a section");
    T_SATWE_SECT_D section;
    section.number = numbers.Integer(1);
    section.kind = static_cast<ESectionKind>(numbers.Integer(2));
    section.param1 = numbers.Integer(3);
    section.param2 = numbers.Integer(4);
    for (std::size_t i = 0; i < 6; ++i) {
        section.dims[i] = numbers.Real(5 + i);
    }
    return section;
}

void ParseSectionLineB(const CLineNumbers& numbers, T_SATWE_SECT_D& section)
{
    numbers.Require(4, "the second line of a section");
    for (std::size_t i = 0; i < 4; ++i) {
        section.dims[6 + i] = numbers.Real(1 + i);
    }
}

T_SATWE_STND_D ParseNode(const CLineNumbers& numbers)
{
    numbers.Require(6, "a node");
    T_SATWE_STND_D node;
    node.number = numbers.Integer(2);
    node.x = numbers.Real(4);
    node.y = numbers.Real(5);
    node.z = numbers.Real(6);
    return node;
}

bool HasExtraLine(const CLineNumbers& numbers, std::string_view what)
{
    numbers.RequireFirst(3, 7, what);
    return numbers.Integer(2) < 0 || numbers.Integer(3) < 0;
}

T_SATWE_STBM_D ParseBeam(const CLineNumbers& numbers)
{
    numbers.Require(7, "a beam");
    T_SATWE_STBM_D beam;
    beam.nodeI = numbers.Integer(2);
    beam.nodeJ = numbers.Integer(3);
    beam.c3 = numbers.Integer(4);
    beam.c4 = numbers.Integer(5);
    beam.d6 = numbers.Real(7);
    return beam;
}

std::array<double, 6> ParseBeamExtra(const CLineNumbers& numbers)
{
    numbers.Require(6, "the extra line of a beam");
    std::array<double, 6> offsets{};
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        offsets[i] = numbers.Real(1 + i);
    }
    return offsets;
}

T_SATWE_STCL_D ParseColumn(const CLineNumbers& numbers)
{
    numbers.Require(7, "a column");
    T_SATWE_STCL_D column;
    column.nodeI = numbers.Integer(2);
    column.nodeJ = numbers.Integer(3);
    column.c3 = numbers.Integer(4);
    column.c4 = numbers.Integer(5);
    column.d6 = numbers.Real(7);
    return column;
}

void ParseColumnExtra(const CLineNumbers& numbers, T_SATWE_STCL_D& column)
{
    numbers.Require(2, "the extra line of a column");
    column.extraValue = numbers.Integer(2);
    column.hasExtra = 1;
}

T_SATWE_STBR_D ParseBrace(const CLineNumbers& numbers)
{
    numbers.Require(7, "a brace");
    T_SATWE_STBR_D brace;
    brace.nodeI = numbers.Integer(2);
    brace.nodeJ = numbers.Integer(3);
    brace.c3 = numbers.Integer(4);
    brace.c4 = numbers.Integer(5);
    brace.d6 = numbers.Real(7);
    return brace;
}

T_SATWE_STWL_D ParseWallLine1(const CLineNumbers& numbers, std::int32_t& secondCount)
{
    numbers.Require(10, "the first line of a wall");
    T_SATWE_STWL_D wall;
    wall.firstCount = numbers.Integer(2);
    secondCount = numbers.Integer(3);
    for (std::size_t i = 0; i < wall.wallValues.size(); ++i) {
        wall.wallValues[i] = numbers.Real(5 + i);
    }
    return wall;
}

void ParseWallPoints(const CLineNumbers& points, std::int32_t secondCount, T_SATWE_STWL_D& wall)
{
    if (wall.firstCount < 0 || secondCount < 0) {
        throw CInvalidArgument({}, "a wall with a negative number of points");
    }
    const auto count = static_cast<std::size_t>(wall.firstCount);
    if (count > 0) {
        wall.firstListA = {points.Integer(1), points.Integer(count)};
        wall.firstListB = {points.Integer(count + 1), points.Integer(2 * count)};
    }
}

T_SATWE_STPL_D ParsePlate(const CLineNumbers& numbers, std::vector<std::int32_t>& vertices)
{
    numbers.Require(4, "a plate");
    constexpr std::size_t kFirstVertex = 5;
    T_SATWE_STPL_D plate;
    plate.vertexCount = numbers.Integer(2);
    plate.thickness = numbers.Real(4);
    if (vertices.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("more plate corners than there is room for");
    }
    plate.firstVertex = static_cast<std::uint32_t>(vertices.size());
    for (std::size_t i = kFirstVertex; i <= numbers.Count() && plate.storedVertices < plate.vertexCount; ++i) {
        vertices.push_back(numbers.Integer(i));
        ++plate.storedVertices;
    }
    return plate;
}

T_SATWE_STLD_D ParseLoad(const CLineNumbers& numbers)
{
    T_SATWE_STLD_D load;
    load.memberId = numbers.IntegerOr0(2);
    load.loadType = static_cast<ELoadType>(numbers.IntegerOr0(3));
    load.loadCase = numbers.IntegerOr0(4) != 0 ? 1 : 0;
    for (std::size_t i = 0; i < TraitsOf(load.loadType).valueCount; ++i) {
        load.value[i] = numbers.RealOr0(5 + i);
    }
    return load;
}

}  // namespace satwecvt
