#include "model/ElasticRatio.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

TEST(ElasticRatio, GradesFrom15To80InStepsOf5HaveOne)
{
    EXPECT_EQ(9.297707, ElasticRatioOf(15));
    EXPECT_EQ(6.91484, ElasticRatioOf(30));
    EXPECT_EQ(5.425621, ElasticRatioOf(80));
    for (std::int32_t grade = -100; grade <= 200; ++grade) {
        EXPECT_EQ(grade >= 15 && grade <= 80 && grade % 5 == 0, ElasticRatioOf(grade).has_value()) << grade;
    }
}

TEST(ElasticRatio, AStrongerConcreteHasASmallerOne)
{
    for (std::int32_t grade = 20; grade <= 80; grade += 5) {
        EXPECT_LT(ElasticRatioOf(grade).value(), ElasticRatioOf(grade - 5).value()) << grade;
    }
}

TEST(ElasticRatio, TheDefaultGradeHasOne)
{
    EXPECT_TRUE(ElasticRatioOf(kDefaultConcreteGrade).has_value());
}

}  // namespace
}  // namespace satwecvt
