// One function per record: which number of its line goes to which field. Each fails with the invalid-argument failure
// when the line has fewer numbers than the record's format. Keys (number 1 of the line), element numbers (`seq`) and
// where the line stands are the caller's business.
#pragma once

#include "model/FrameRecords.h"
#include "model/LoadRecord.h"
#include "model/NodeRecord.h"
#include "model/PlateRecord.h"
#include "model/SectionRecord.h"
#include "model/WallRecord.h"
#include "reader/LineNumbers.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace satwecvt {

/// Line A of a section definition, ten numbers: key, kind, param1, param2, dims 0 to 5.
T_SATWE_SECT_D ParseSectionLineA(const CLineNumbers& numbers);

/// Line B of a section definition, four numbers: dims 6 to 9.
void ParseSectionLineB(const CLineNumbers& numbers, T_SATWE_SECT_D& section);

/// Six numbers: key, number, flag, x, y, z.
T_SATWE_STND_D ParseNode(const CLineNumbers& numbers);

/// Whether the line of a beam or column has an extra line behind it: an end node is negative. `what` names the member,
/// for a line that is too short to tell.
bool HasExtraLine(const CLineNumbers& numbers, std::string_view what);

/// Seven numbers: key, nodeI, nodeJ, c3, c4, unused, d6.
T_SATWE_STBM_D ParseBeam(const CLineNumbers& numbers);

/// The extra line of a beam, six numbers: the end offsets.
std::array<double, 6> ParseBeamExtra(const CLineNumbers& numbers);

/// Seven numbers: key, nodeI, nodeJ, c3, c4, unused, d6.
T_SATWE_STCL_D ParseColumn(const CLineNumbers& numbers);

/// The extra line of a column, two numbers: unused, the node at which the column is split.
void ParseColumnExtra(const CLineNumbers& numbers, T_SATWE_STCL_D& column);

/// Seven numbers: key, nodeI, nodeJ, c3, c4, unused, d6.
T_SATWE_STBR_D ParseBrace(const CLineNumbers& numbers);

/// Ten numbers: key, firstCount, secondCount, unused, wallValues 0 to 5. `secondCount` is handed out beside the record,
/// since it only sizes the point list.
T_SATWE_STWL_D ParseWallLine1(const CLineNumbers& numbers, std::int32_t& secondCount);

/// Takes the ends of the wall's rows out of its point list, which holds 2 x (firstCount + secondCount) numbers. A
/// negative count has no points and is the invalid-argument failure.
void ParseWallPoints(const CLineNumbers& points, std::int32_t secondCount, T_SATWE_STWL_D& wall);

/// Four numbers and more: key, vertexCount, unused, thickness, then every vertex; the vertices go to the end of a list.
T_SATWE_STPL_D ParsePlate(const CLineNumbers& numbers, std::vector<std::int32_t>& vertices);

/// Up to ten numbers: unused, memberId, loadType, loadCase, value 0 to 3, two unused. Missing ones are 0, and so are
/// the values that the type does not use.
T_SATWE_STLD_D ParseLoad(const CLineNumbers& numbers);

}  // namespace satwecvt
