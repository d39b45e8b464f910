#include "writer/MessageLog.h"

#include "writer/MessageText.h"

#include <stdexcept>

namespace satwecvt {

void CMessageLog::Tell(const CFinding& finding)
{
    if (WriteMessage(file, finding)) {
        ++lineCount;
    }
    if (next == nullptr) {
        return;
    }
    try {
        next->Tell(finding);
    } catch (const CFileError& failure) {
        throw std::runtime_error(failure.what());  // no file of this conversion
    }
}

}  // namespace satwecvt
