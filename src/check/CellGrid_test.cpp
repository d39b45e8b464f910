#include "check/CellGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace satwecvt {
namespace {

constexpr CBox kCube{{0, 0, 0}, {1, 1, 1}};

std::vector<std::size_t> CellsNear(const CCellGrid& grid, const CVector& from, const CVector& to)
{
    std::vector<std::size_t> cells;
    grid.VisitNear(from, to, [&](std::size_t first, std::size_t last) {
        for (std::size_t cell = first; cell <= last; ++cell) {
            cells.push_back(cell);
        }
    });
    std::sort(cells.begin(), cells.end());
    return cells;
}

TEST(CellGrid, CellsAreAsWideAsTold)
{
    EXPECT_EQ(1000U, CCellGrid({{0, 0, 0}, {0.95, 0.95, 0.95}}, 0.1, 100000).Cells());
    EXPECT_EQ(10U, CCellGrid({{5, 5, 5}, {5.95, 5, 5}}, 0.1, 100000).Cells());
    EXPECT_EQ(1U, CCellGrid({{5, 5, 5}, {5, 5, 5}}, 0.1, 100000).Cells());
}

TEST(CellGrid, ThereAreNoMoreCellsThanAllowed)
{
    for (const std::size_t most : {1U, 2U, 10U, 1000U}) {
        EXPECT_LE(CCellGrid(kCube, 0.0, most).Cells(), most);
        EXPECT_LE(CCellGrid({{0, 0, 0}, {1, 0, 0}}, 1e-300, most).Cells(), most);
    }
}

TEST(CellGrid, NeighboursAlongXFollowEachOther)
{
    const CCellGrid grid({{0, 0, 0}, {0.95, 0.95, 0}}, 0.1, 1000);
    EXPECT_EQ(0U, grid.CellAt({0.05, 0.05, 0}));
    EXPECT_EQ(1U, grid.CellAt({0.15, 0.05, 0}));
    EXPECT_EQ(10U, grid.CellAt({0.05, 0.15, 0}));
    EXPECT_EQ(99U, grid.CellAt({0.95, 0.95, 0}));
    EXPECT_EQ(99U, grid.CellAt({7, 7, 7}));
    EXPECT_EQ(0U, grid.CellAt({-7, -7, -7}));
}

TEST(CellGrid, APlaceOnTheEdgeOfACellIsNearToBoth)
{
    const CCellGrid grid({{0, 0, 0}, {0.95, 0, 0}}, 0.1, 1000);
    const auto cells = [&](double x) { return CellsNear(grid, {x, 0, 0}, {x, 0, 0}); };
    EXPECT_EQ((std::vector<std::size_t>{2}), cells(0.25));
    EXPECT_EQ((std::vector<std::size_t>{1, 2}), cells(0.2));
    EXPECT_EQ((std::vector<std::size_t>{1, 2}), cells(0.2 + kPlaceTolerance));
    EXPECT_EQ((std::vector<std::size_t>{2}), cells(0.2 + 3 * kPlaceTolerance));
}

TEST(CellGrid, ASegmentIsNearToEveryCellThatItPassesAndTellsNoneTwice)
{
    std::mt19937 random(1);
    const auto part = [&] { return static_cast<double>(random() % 9) / 8.0; };
    for (int i = 0; i < 3000; ++i) {
        const CCellGrid grid(kCube, 0.03 + 0.2 * part(), 5000);
        const CVector from{part(), part(), part()};
        const CVector to{part(), part(), random() % 2 == 0 ? from.z : part()};
        const std::vector<std::size_t> cells = CellsNear(grid, from, to);
        ASSERT_EQ(cells.end(), std::adjacent_find(cells.begin(), cells.end()));
        for (int step = 0; step <= 200; ++step) {
            const double t = step / 200.0;
            const CVector place{from.x + t * (to.x - from.x), from.y + t * (to.y - from.y),
                                from.z + t * (to.z - from.z)};
            for (const double beside : {0.0, kPlaceTolerance, -kPlaceTolerance}) {
                const CVector near{place.x + beside, place.y + beside, place.z - beside};
                ASSERT_TRUE(std::binary_search(cells.begin(), cells.end(), grid.CellAt(near))) << i << " " << step;
            }
        }
    }
}

TEST(CellGrid, ASegmentPassesFewCellsBesideThoseOnItsWay)
{
    const CCellGrid grid(kCube, 0.01, 10000000);  // 100 layers
    EXPECT_LE(CellsNear(grid, {0, 0.505, 0.505}, {1, 0.505, 0.505}).size(), 101U);
    EXPECT_LE(CellsNear(grid, {0, 0, 0.505}, {1, 0.97, 0.505}).size(), 2 * 101U);
    EXPECT_LE(CellsNear(grid, {0, 0.1, 0.1}, {1, 0.93, 0.98}).size(), 4 * 101U);
}

}  // namespace
}  // namespace satwecvt
