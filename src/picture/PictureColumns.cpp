#include "picture/PictureColumns.h"

#include "picture/PictureParts.h"

#include <array>

namespace satwecvt {

CColumnBytes PictureColumns(const CPicture& picture)
{
    const CPictureSource& source = picture.source;
    CColumnBytes columns;
    columns.Add("program.version", std::array{source.version});
    columns.Add("file.names", std::array{source.structurePath, source.loadPath});
    AddElements(columns, picture);
    AddProperties(columns, source.model);
    AddLoads(columns, source);
    AddFindings(columns, picture);
    return columns;
}

}  // namespace satwecvt
