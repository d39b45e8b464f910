// The record tables: filled in file order and asked for every key, beside a hash map of the same records.
#include "model/NodeRecord.h"
#include "model/RecordTable.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace satwecvt {
namespace {

constexpr std::int32_t kRecords = 100'000;

/// Keys as files have them: one after the other, with gaps, or in reverse.
std::vector<std::int32_t> Keys(std::int32_t first, std::int32_t step)
{
    std::vector<std::int32_t> keys;
    for (std::int32_t i = 0; i < kRecords; ++i) {
        keys.push_back(first + i * step);
    }
    return keys;
}

void RecordTable(benchmark::State& state, std::int32_t first, std::int32_t step)
{
    const std::vector<std::int32_t> keys = Keys(first, step);
    for (auto _ : state) {
        CRecordTable<T_SATWE_STND_D> table;
        table.Reserve(keys.size());
        for (const std::int32_t key : keys) {
            table.Insert(key, {key, 0, 1.0, 2.0, 3.0});
        }
        table.SortByKey();
        for (const std::int32_t key : keys) {
            benchmark::DoNotOptimize(table.Find(key));
        }
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

void HashMap(benchmark::State& state, std::int32_t first, std::int32_t step)
{
    const std::vector<std::int32_t> keys = Keys(first, step);
    for (auto _ : state) {
        std::unordered_map<std::int32_t, T_SATWE_STND_D> table;
        for (const std::int32_t key : keys) {
            table.insert_or_assign(key, T_SATWE_STND_D{key, 0, 1.0, 2.0, 3.0});
        }
        for (const std::int32_t key : keys) {
            benchmark::DoNotOptimize(table.find(key));
        }
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

#define KEYS(name, first, step)                        \
    BENCHMARK_CAPTURE(RecordTable, name, first, step); \
    BENCHMARK_CAPTURE(HashMap, name, first, step)

KEYS(Consecutive, 1, 1);
KEYS(WithGaps, 1, 7);
KEYS(Reverse, kRecords, -1);

}  // namespace
}  // namespace satwecvt
