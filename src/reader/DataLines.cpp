#include "reader/DataLines.h"

#include "model/Int32.h"
#include "reader/StrParser.h"

namespace satwecvt {

int CDataLines::ReadDataLine()
{
    do {
        if (progress.StepLine(state.lineCounter) == 0) {
            state.cancelled = true;
            Close();
            return 0;
        }
        state.lineCounter = WrappedSum(state.lineCounter, 1);
        if (input.ReadLine(line) == 0) {
            return 0;
        }
    } while (CStrParser::CheckLine(line) == 0);
    return 1;
}

int CDataLines::ReadNumbers(CLineNumbers& numbers)
{
    numbers.Values().clear();
    return ReadDataLine() != 0 ? CStrParser::ParseNumbers(Text(), numbers.Values()) : 0;
}

}  // namespace satwecvt
