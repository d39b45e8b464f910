#include "geometry/TriangleEdges.h"

#include "geometry/MathFunc.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace satwecvt {
namespace {

using CVector = CTriangleEdges::CVector;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TriangleEdges, PointOneWayWhenTheirAngleIsExactly0)
{
    struct CRow {
        CVector first;
        CVector second;
        bool pointOneWay;
    };
    const CRow rows[] = {
        {{1, 0, 0}, {5, 0, 0}, true},
        {{0, -2, 0}, {0, -1e-14, 0}, true},
        {{1e60, 0, 0}, {1e-14, 0, 0}, true},
        {{1, 0, 0}, {-1, 0, 0}, false},
        {{1, 0, 0}, {0, 1, 0}, false},
        {{1, 0, 0}, {1, 1e-3, 0}, false},
        {{1, 0, 0}, {1, 1e-7, 0}, false},
        {{1, 0, 0}, {1, 1e-9, 0}, true},  // an angle that doubles cannot tell from 0
        {{1e200, 0, 0}, {0, 1e200, 0}, false},
        {{kNaN, 0, 0}, {1, 0, 0}, false},
        {{kInfinity, 0, 0}, {1, 0, 0}, false},
    };
    for (const CRow& row : rows) {
        EXPECT_EQ(row.pointOneWay, CTriangleEdges().PointOneWay(row.first, row.second))
            << row.first[0] << " " << row.second[0] << " " << row.second[1];
    }
}

TEST(TriangleEdges, AnEdgeWithoutLengthKeepsTheDirectionOfTheTriangleBefore)
{
    CTriangleEdges edges;
    EXPECT_FALSE(edges.PointOneWay({0, 0, 0}, {1, 0, 0}));  // there was none: the angle is 90
    EXPECT_FALSE(edges.PointOneWay({0, 1, 0}, {1, 0, 0}));
    EXPECT_TRUE(edges.PointOneWay({0, 0, 0}, {0, 7, 0}));
    EXPECT_TRUE(edges.PointOneWay({0, 2, 0}, {0, 0, 1e-16}));
    EXPECT_FALSE(edges.PointOneWay({3, 0, 0}, {0, 0, 0}));
}

/// The rule as it is told: two unit vectors that normalisation may leave as they were.
class CPlainEdges {
public:
    bool PointOneWay(const CVector& first, const CVector& second)
    {
        static_cast<void>(CMathFunc::Normalize(first.data(), u.data()));
        static_cast<void>(CMathFunc::Normalize(second.data(), w.data()));
        return CMathFunc::AngleDeg(u.data(), w.data()) == 0.0;
    }

private:
    CVector u{};
    CVector w{};
};

TEST(TriangleEdges, AgreeWithThePlainRuleOverLongRowsOfOddTriangles)
{
    constexpr double kOdd[] = {0, 0, 1, 2, -3, 0.1, 1e-15, 5e-16, -1e-16, 1e-8, 1e155, 1e300, -1e300, kInfinity, kNaN};
    std::mt19937 random(1);
    const auto vector = [&] {
        CVector v{};
        const std::size_t choices = random() % 3 == 0 ? std::size(kOdd) : 6;
        for (double& part : v) {
            part = kOdd[random() % choices];
        }
        return v;
    };
    CTriangleEdges edges;
    CPlainEdges plain;
    int oneWay = 0;
    for (int i = 0; i < 200000; ++i) {
        const CVector first = vector();
        CVector second = vector();
        if (random() % 4 == 0) {
            const double factor = 0.25 + static_cast<double>(random() % 7) / 3.0;
            second = {first[0] * factor, first[1] * factor, first[2] * factor};
        }
        const bool expected = plain.PointOneWay(first, second);
        ASSERT_EQ(expected, edges.PointOneWay(first, second)) << i;
        oneWay += expected ? 1 : 0;
    }
    EXPECT_GT(oneWay, 10000);
}

}  // namespace
}  // namespace satwecvt
