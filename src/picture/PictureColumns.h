// A picture as columns, for the page's program: what the model text file says, number for number, and beside it what
// the input adds. The names of the columns are those of the records; page/src/model/Building.ts reads them.
#pragma once

#include "picture/ColumnBytes.h"
#include "picture/Picture.h"

#include <string_view>

namespace satwecvt {

/// The column of the plans as SVG texts: of each story, or of none.
inline constexpr std::string_view kPlansColumn = "plan.svg";

/// All columns but the plans. The same picture gives the same bytes on every machine.
CColumnBytes PictureColumns(const CPicture& picture);

}  // namespace satwecvt
