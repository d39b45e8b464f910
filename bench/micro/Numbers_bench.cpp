// Numbers in and out, beside what the standard library takes for the same.
#include "lines/Decimal.h"
#include "lines/NumberPrefix.h"
#include "text/NumberText.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace satwecvt {
namespace {

void ReadByHouse(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        const char* at = text.c_str();
        double value = 0.0;
        benchmark::DoNotOptimize(ReadDecimal(at, value));
        benchmark::DoNotOptimize(value);
    }
}

void ReadByFromChars(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(ParseNumberPrefix(text));
    }
}

void ReadByStrtod(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::strtod(text.c_str(), nullptr));
    }
}

void WriteByHouse(benchmark::State& state, double number)
{
    char text[32];
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        benchmark::DoNotOptimize(WriteReal(text, number));
    }
}

void WriteByToChars(benchmark::State& state, double number)
{
    char text[32];
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        benchmark::DoNotOptimize(std::to_chars(text, text + 32, number, std::chars_format::general, 6).ptr);
    }
}

#define NUMBER_IN(name, text)                       \
    BENCHMARK_CAPTURE(ReadByHouse, name, text);     \
    BENCHMARK_CAPTURE(ReadByFromChars, name, text); \
    BENCHMARK_CAPTURE(ReadByStrtod, name, text)

#define NUMBER_OUT(name, number)                   \
    BENCHMARK_CAPTURE(WriteByHouse, name, number); \
    BENCHMARK_CAPTURE(WriteByToChars, name, number)

NUMBER_IN(Integer, "433200");
NUMBER_IN(Decimal, "12345.678");
NUMBER_IN(Exponent, "0.12345678E+05");
NUMBER_IN(Long, "3.14159265358979323");

NUMBER_OUT(Zero, 0.0);
NUMBER_OUT(Integer, 433200.0);
NUMBER_OUT(Decimal, 12345.678);
NUMBER_OUT(Fraction, 1.0 / 3.0);
NUMBER_OUT(Large, 1234567.8);
NUMBER_OUT(Huge, 1.5e200);

}  // namespace
}  // namespace satwecvt
