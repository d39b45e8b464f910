#include "writer/MessageLog.h"

#include "writer/MessageText.h"

namespace satwecvt {

void CMessageLog::Tell(const CFinding& finding)
{
    if (WriteMessage(file, finding)) {
        ++lineCount;
    }
    if (next != nullptr) {
        next->Tell(finding);
    }
}

}  // namespace satwecvt
