#include "model/RecordTable.h"

#include "model/NodeRecord.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>
#include <string>

namespace satwecvt {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

using CKeys = std::vector<std::int32_t>;

std::vector<std::string> TextsOf(std::span<const std::string> records)
{
    return {records.begin(), records.end()};
}

/// Each record is the text of its key.
CRecordTable<std::string> TableOf(const CKeys& keys)
{
    CRecordTable<std::string> table;
    for (const std::int32_t key : keys) {
        table.Insert(key, std::to_string(key));
    }
    table.SortByKey();
    return table;
}

TEST(RecordTable, TwoRecordsUnderOneKeyLeaveTheLaterOne)
{
    CRecordTable<T_SATWE_STND_D> nodes;
    nodes.Insert(7, {1, 4, 0.0, 0.0, 0.0});
    nodes.Insert(7, {2, 9, 4.0, 5.0, 6.0});
    nodes.SortByKey();
    ASSERT_EQ(1U, nodes.Count());
    EXPECT_EQ(2, nodes.Find(7)->number);
    EXPECT_EQ(6.0, nodes.At(0).z);
}

TEST(RecordTable, ALaterRecordReplacesAnEarlierOneAlsoWithOthersInBetween)
{
    CRecordTable<std::string> table;
    for (const auto& [key, record] : {std::pair{3, "a"}, {1, "b"}, {3, "c"}, {2, "d"}, {1, "e"}, {3, "f"}}) {
        table.Insert(key, record);
    }
    table.SortByKey();
    EXPECT_EQ((CKeys{1, 2, 3}), table.Keys());
    EXPECT_EQ((std::vector<std::string>{"e", "d", "f"}), TextsOf(table.Records()));
}

TEST(RecordTable, RecordsStandInAscendingOrderOfTheirSignedKeys)
{
    const CRecordTable<std::string> table = TableOf({5, kMax, 2, -1, 9, kMin, 0});
    EXPECT_EQ((CKeys{kMin, -1, 0, 2, 5, 9, kMax}), table.Keys());
    EXPECT_EQ("-1", table.At(1));
    EXPECT_EQ(-1, table.KeyAt(1));
}

TEST(RecordTable, RecordsThatLaterOnesReplaceAreKeptAside)
{
    CRecordTable<std::string> table;
    for (const auto& [key, record] : {std::pair{3, "a"}, {1, "b"}, {3, "c"}, {2, "d"}, {1, "e"}, {3, "f"}}) {
        table.Insert(key, record);
    }
    EXPECT_TRUE(table.Replaced().empty());
    table.SortByKey();
    EXPECT_EQ((std::vector<std::string>{"b", "a", "c"}), TextsOf(table.Replaced()));
    EXPECT_EQ(1, table.KeyOfReplaced(0));
    EXPECT_EQ(3, table.KeyOfReplaced(1));
    EXPECT_EQ(3, table.KeyOfReplaced(2));
    EXPECT_EQ("f", *table.Find(3));
    EXPECT_EQ(nullptr, table.Find(4));
}

TEST(RecordTable, WithoutEqualKeysNothingIsReplaced)
{
    EXPECT_TRUE(TableOf({}).Replaced().empty());
    EXPECT_TRUE(TableOf({1, 2, 3}).Replaced().empty());
    EXPECT_TRUE(TableOf({5, 2, 9}).Replaced().empty());
}

TEST(RecordTable, AnEmptyTableHasNothing)
{
    const CRecordTable<std::string> table = TableOf({});
    EXPECT_EQ(0U, table.Count());
    EXPECT_EQ(nullptr, table.Find(0));
    EXPECT_EQ(nullptr, table.Find(kMin));
}

TEST(RecordTable, FindAnswersForConsecutiveAndForScatteredKeys)
{
    for (const CKeys& keys : {CKeys{1, 2, 3, 4}, CKeys{-2, -1, 0, 1}, CKeys{1, 2, 4, 8, 16}, CKeys{4, 1, 1000},
                              CKeys{kMin, kMax}, CKeys{kMin, 0, kMax}, CKeys{kMax}, CKeys{kMax - 1, kMax, 3}}) {
        const CRecordTable<std::string> table = TableOf(keys);
        for (const std::int32_t key : keys) {
            const std::string* found = table.Find(key);
            ASSERT_NE(nullptr, found) << key;
            EXPECT_EQ(std::to_string(key), *found);
        }
    }
}

TEST(RecordTable, ConsecutiveKeysUpToTheLargestOneAreKept)
{
    const CRecordTable<std::string> table = TableOf({kMax - 2, kMax - 1, kMax});
    EXPECT_EQ((CKeys{kMax - 2, kMax - 1, kMax}), table.Keys());
    EXPECT_EQ(kMax, table.KeyAt(2));
    EXPECT_EQ(nullptr, table.Find(kMin));
}

TEST(RecordTable, FindAnswersNullForAKeyThatIsNotThere)
{
    const CRecordTable<std::string> table = TableOf({1, 2, 4, 8, 16});
    for (const std::int32_t key : {kMin, -1, 0, 3, 5, 7, 15, 17, kMax}) {
        EXPECT_EQ(nullptr, table.Find(key)) << key;
    }
}

TEST(RecordTable, RecordsMayBeAddedAfterASorting)
{
    CRecordTable<std::string> table = TableOf({2, 4});
    table.Insert(3, "new");
    table.Insert(4, "newer");
    table.SortByKey();
    EXPECT_EQ((CKeys{2, 3, 4}), table.Keys());
    EXPECT_EQ((std::vector<std::string>{"2", "new", "newer"}), TextsOf(table.Records()));
}

/// Fills a table and a `std::map` with the same random records.
void ExpectLikeAMap(std::mt19937& random, std::int32_t firstKey, std::int32_t lastKey)
{
    std::uniform_int_distribution<std::int32_t> anyKey(firstKey, lastKey);
    CRecordTable<int> table;
    std::map<std::int32_t, int> expected;
    for (int i = std::uniform_int_distribution<int>(0, 60)(random); i > 0; --i) {
        const std::int32_t key = anyKey(random);
        table.Insert(key, i);
        expected[key] = i;
    }
    table.SortByKey();
    ASSERT_EQ(expected.size(), table.Count());
    ASSERT_EQ(expected.size(), table.Keys().size());
    std::size_t position = 0;
    for (const auto& [key, record] : expected) {
        EXPECT_EQ(key, table.KeyAt(position));
        EXPECT_EQ(record, table.At(position++));
    }
    for (int i = 0; i < 60; ++i) {
        const std::int32_t key = anyKey(random);
        const auto found = expected.find(key);
        const int* record = table.Find(key);
        ASSERT_EQ(found != expected.end(), record != nullptr) << key;
        EXPECT_TRUE(record == nullptr || *record == found->second) << key;
    }
}

TEST(RecordTable, BehavesLikeAMapForRandomRecords)
{
    std::mt19937 random(20240611);
    for (int round = 0; round < 2000; ++round) {
        ExpectLikeAMap(random, -20, 20);
        ExpectLikeAMap(random, 1, 200);
        ExpectLikeAMap(random, kMin, kMax);
    }
}

}  // namespace
}  // namespace satwecvt
