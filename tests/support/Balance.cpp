#include "support/Balance.h"

#include "modelfile/ModelReader.h"

#include <sstream>

namespace satwecvt {

namespace {

std::string SumText(const CForceSum& sum)
{
    std::ostringstream text;
    text.precision(17);
    text << sum.count << " (" << sum.fx << ", " << sum.fy << ", " << sum.fz << ")";
    return text.str();
}

}  // namespace

std::vector<CBalanceRow> BalanceOf(const CSatweModel& input, const CConversionResult& conversion)
{
    return BalanceLoads(input, ReadModelFile(conversion.model.value()), conversion.findings);
}

std::string RowText(const CBalanceRow& row)
{
    std::ostringstream text;
    text << "story " << (row.story ? std::to_string(*row.story) : "none") << (row.loadCase == 0 ? " dead" : " live")
         << ": read " << SumText(row.read) << ", model " << SumText(row.model) << ", lost " << SumText(row.lost)
         << ", not summed " << row.notSummed << ", off " << row.off << ", bound (" << row.roundingBound.fx << ", "
         << row.roundingBound.fy << ", " << row.roundingBound.fz << ")";
    return text.str();
}

std::string BrokenRows(const std::vector<CBalanceRow>& rows)
{
    std::string text;
    for (const CBalanceRow& row : rows) {
        text += row.Holds() ? "" : RowText(row) + "\n";
    }
    return text;
}

}  // namespace satwecvt
