#include "cli/BalanceTable.h"

#include "cli/Losses.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <optional>
#include <ostream>
#include <string>

namespace satwecvt {

namespace {

using CComponent = double CForceSum::*;

/// The two rows of a block.
struct CBlock {
    std::optional<std::int32_t> story;
    std::array<const CBalanceRow*, 2> rows{};  // dead, live
};

std::vector<CBlock> BlocksOf(const std::vector<CBalanceRow>& rows)
{
    std::vector<CBlock> blocks;
    for (const CBalanceRow& row : rows) {
        if (blocks.empty() || blocks.back().story != row.story) {
            blocks.push_back({row.story, {}});
        }
        blocks.back().rows[row.loadCase == 0 ? 0 : 1] = &row;
    }
    return blocks;
}

/// A force with six digits, as far as it has them, and without an exponent where a person can still count its zeros.
std::string ForceText(double force)
{
    constexpr int kDigits = 6;
    constexpr double kLargest = 1e9;
    constexpr double kSmallest = 1e-4;
    std::array<char, 32> text{};
    const double size = std::abs(force);
    const bool isShort = size == 0.0 || (size >= kSmallest && size < kLargest);
    if (!isShort) {
        return {text.data(),
                std::to_chars(text.data(), text.data() + text.size(), force, std::chars_format::general, kDigits).ptr};
    }
    const int inFront = size < 1.0 ? 0 : static_cast<int>(std::log10(size)) + 1;
    const int behind = std::max(0, kDigits - inFront);
    const double unit = std::pow(10.0, inFront - kDigits);
    const double rounded = inFront > kDigits ? std::round(force / unit) * unit : force;
    std::string digits(
        text.data(),
        std::to_chars(text.data(), text.data() + text.size(), rounded, std::chars_format::fixed, behind).ptr);
    if (digits.find('.') != std::string::npos) {
        digits.erase(digits.find_last_not_of('0') + 1);
        digits.erase(digits.find_last_not_of('.') + 1);
    }
    return digits == "-0" ? "0" : digits;
}

std::string CellOf(const CBalanceRow* row, CForceSum CBalanceRow::*side, CComponent component)
{
    return row == nullptr ? "-" : ForceText((row->*side).*component);
}

std::string LostCell(const CBalanceRow* row, CComponent component)
{
    const bool isNothing = row == nullptr || row->lost.*component == 0.0;
    return isNothing ? "-" : ForceText(row->lost.*component);
}

void PrintComponent(std::ostream& out, const std::vector<CBlock>& blocks, CComponent component)
{
    out << "Story        dead: read    in model        lost     live: read    in model        lost   both in "
           "LiveLoad\n";
    for (const CBlock& block : blocks) {
        out << std::right << std::setw(5) << (block.story ? std::to_string(*block.story) : "none");
        double both = 0.0;
        for (std::size_t i = 0; i < block.rows.size(); ++i) {
            const CBalanceRow* row = block.rows[i];
            out << std::setw(i == 0 ? 18 : 15) << CellOf(row, &CBalanceRow::read, component) << " " << std::setw(11)
                << CellOf(row, &CBalanceRow::model, component) << " " << std::setw(11) << LostCell(row, component);
            both += row != nullptr ? row->model.*component : 0.0;
        }
        out << std::setw(19) << ForceText(both) << "\n";
    }
}

bool HasAny(const std::vector<CBalanceRow>& rows, CComponent component)
{
    for (const CBalanceRow& row : rows) {
        if (row.read.*component != 0.0 || row.model.*component != 0.0) {
            return true;
        }
    }
    return false;
}

/// Says of which rows the table cannot be held together, and of which it does not hold.
void PrintRemarks(std::ostream& out, const std::vector<CBalanceRow>& rows)
{
    for (const CBalanceRow& row : rows) {
        const std::string name = std::string(row.loadCase == 0 ? "dead" : "live") + " loads of " +
                                 (row.story ? "story " + std::to_string(*row.story) : "blocks without a story");
        if (row.notSummed > 0) {
            out << name << ": " << CountText(row.notSummed, "load", "loads")
                << " cannot be summed: left out of \"read\", but not of \"in model\"\n";
        }
        if (!row.Holds()) {
            out << name << ": the model does not carry what was read, and no finding says why; please report it\n";
        }
    }
}

}  // namespace

void PrintBalance(std::ostream& out, const std::vector<CBalanceRow>& rows)
{
    out << "Loads, in the units of the files, down is positive\n";
    if (rows.empty()) {
        out << "none\n";
        return;
    }
    const std::vector<CBlock> blocks = BlocksOf(rows);
    PrintComponent(out, blocks, &CForceSum::fz);
    if (HasAny(rows, &CForceSum::fx)) {
        out << "\nAlong x, positive in its direction\n";
        PrintComponent(out, blocks, &CForceSum::fx);
    }
    if (HasAny(rows, &CForceSum::fy)) {
        out << "\nAlong y, positive in its direction\n";
        PrintComponent(out, blocks, &CForceSum::fy);
    }
    out << "LiveLoad holds the dead loads too: do not add it to DeadLoad. Equal forces are not equal moments.\n";
    PrintRemarks(out, rows);
}

}  // namespace satwecvt
