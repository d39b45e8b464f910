// From bytes to the numbers of a line: cutting, and both ways to read a line of each usual kind.
#include "BenchFiles.h"
#include "lines/InputFile.h"
#include "lines/PlainLine.h"
#include "lines/StrParser.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace satwecvt {
namespace {

void CutLines(benchmark::State& state)
{
    constexpr int kLines = 10000;
    std::string text;
    for (int i = 0; i < kLines; ++i) {
        text += "17837 5 0 300 58884 47563 47564 47694\n";
    }
    CBenchFiles files(text);
    for (auto _ : state) {
        benchmark::DoNotOptimize(CountLines(files, ""));
    }
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(CutLines);

void PlainLine(benchmark::State& state, const char* line)
{
    std::vector<double> numbers;
    for (auto _ : state) {
        if (!ReadPlainLine(line, numbers)) {
            state.SkipWithError("not taken");
        }
        benchmark::DoNotOptimize(numbers.data());
    }
}

void CheckAndParse(benchmark::State& state, const std::string& original)
{
    std::vector<double> numbers;
    std::string line = original;
    for (auto _ : state) {
        numbers.clear();
        benchmark::DoNotOptimize(CStrParser::CheckLine(line));
        benchmark::DoNotOptimize(CStrParser::ParseNumbers(line, numbers));
    }
}

#define LINE_KIND(name, line)                 \
    BENCHMARK_CAPTURE(PlainLine, name, line); \
    BENCHMARK_CAPTURE(CheckAndParse, name, line)

LINE_KIND(Node, "8638 19948 0 433200 475200.5 4500\n");
LINE_KIND(Beam, "    4711   12043   12044     3     1     0   0.0000\n");
LINE_KIND(Commas, "12043, 13763, 4, 1, 25, 2100\n");
LINE_KIND(Arithmetic, "21270 183966 0 309000 518400+3600 2*13050\n");
LINE_KIND(Assignment, "21271 183967 0 316200 522000 26100 PHASE=1 (as built)\n");
LINE_KIND(Exponents, "1 2 0 0.12345000E+04 -0.98765000E-02 0.10000000E+01\n");

}  // namespace
}  // namespace satwecvt
