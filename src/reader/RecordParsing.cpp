#include "reader/RecordParsing.h"

namespace satwecvt {

T_SATWE_SECT_D ParseSectionLineA(const CLineNumbers& numbers)
{
    T_SATWE_SECT_D section;
    section.kind = numbers.Integer(2);
    section.param1 = numbers.Integer(3);
    section.param2 = numbers.Integer(4);
    for (std::size_t i = 0; i < 6; ++i) {
        section.dims[i] = numbers.Real(5 + i);
    }
    return section;
}

void ParseSectionLineB(const CLineNumbers& numbers, T_SATWE_SECT_D& section)
{
    for (std::size_t i = 0; i < 4; ++i) {
        section.dims[6 + i] = numbers.Real(1 + i);
    }
}

T_SATWE_STND_D ParseNode(const CLineNumbers& numbers)
{
    T_SATWE_STND_D node;
    node.number = numbers.Integer(2);
    node.x = numbers.Real(4);
    node.y = numbers.Real(5);
    node.z = numbers.Real(6);
    return node;
}

bool HasExtraLine(const CLineNumbers& numbers)
{
    return numbers.Integer(2) < 0 || numbers.Integer(3) < 0;
}

T_SATWE_STBM_D ParseBeam(const CLineNumbers& numbers)
{
    T_SATWE_STBM_D beam;
    beam.nodeI = numbers.Integer(2);
    beam.nodeJ = numbers.Integer(3);
    beam.c3 = numbers.Integer(4);
    beam.c4 = numbers.Integer(5);
    beam.d6 = numbers.Real(7);
    return beam;
}

CBeamExtra ParseBeamExtra(const CLineNumbers& numbers)
{
    CBeamExtra extra{};
    for (std::size_t i = 0; i < extra.size(); ++i) {
        extra[i] = numbers.Real(1 + i);
    }
    return extra;
}

T_SATWE_STCL_D ParseColumn(const CLineNumbers& numbers)
{
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
    column.extraValue = numbers.Integer(2);
    column.hasExtra = 1;
}

T_SATWE_STBR_D ParseBrace(const CLineNumbers& numbers)
{
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
        throw CInvalidArgument("a wall with a negative number of points");
    }
    const auto count = static_cast<std::size_t>(wall.firstCount);
    if (count > 0) {
        wall.firstListA = {points.Integer(1), points.Integer(count)};
        wall.firstListB = {points.Integer(count + 1), points.Integer(2 * count)};
    }
}

T_SATWE_STPL_D ParsePlate(const CLineNumbers& numbers, std::vector<std::int32_t>& vertices)
{
    constexpr std::size_t kFirstVertex = 5;
    T_SATWE_STPL_D plate;
    plate.vertexCount = numbers.Integer(2);
    plate.thickness = numbers.Real(4);
    plate.firstVertex = vertices.size();
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
    load.loadCase = numbers.IntegerOr0(4);
    for (std::size_t i = 0; i < load.value.size(); ++i) {
        load.value[i] = numbers.RealOr0(5 + i);
    }
    return load;
}

}  // namespace satwecvt
