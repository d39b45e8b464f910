#include "model/WallRecord.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Wall, AnEndStandsUprightWithinAMillionthOfTheUnit)
{
    struct CRow {
        T_SATWE_STND_D a;
        T_SATWE_STND_D b;
        double x;
        double y;
    };
    const CRow rows[] = {
        {{1, 0, 2, 3, 0}, {2, 0, 2, 3, 9}, 0, 0},           {{1, 0, 0, 0, 0}, {2, 0, 1e-6, -1e-6, 9}, 0, 0},
        {{1, 0, 0, 0, 0}, {2, 0, 1.1e-6, 0, 9}, 1.1e-6, 0}, {{1, 0, 0, 0, 0}, {2, 0, 0, -1.1e-6, 9}, 0, 1.1e-6},
        {{1, 0, 5, 7, 0}, {2, 0, 2, 11, 9}, 3, 4},          {{1, 0, -kInfinity, 0, 0}, {2, 0, 0, 0, 9}, kInfinity, 0},
        {{1, 0, kNaN, 0, 0}, {2, 0, 0, 0, 9}, 0, 0},        {{1, 0, kInfinity, 0, 0}, {2, 0, kInfinity, 0, 9}, 0, 0},
    };
    for (const CRow& row : rows) {
        const CPlanDistance distance = DistanceAtEnd(row.a, row.b);
        EXPECT_EQ(row.x, distance.x) << row.b.x << " " << row.b.y;
        EXPECT_EQ(row.y, distance.y) << row.b.x << " " << row.b.y;
    }
}

}  // namespace
}  // namespace satwecvt
