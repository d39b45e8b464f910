#include "picture/PlanTurn.h"

#include <cmath>

namespace satwecvt {

namespace {

/// The first terms of both series: enough for an eighth of a turn.
CPlanTurn SmallTurn(double degrees) noexcept
{
    constexpr double kRadians = 3.14159265358979323846 / 180.0;
    constexpr int kTerms = 18;
    const double angle = degrees * kRadians;
    CPlanTurn turn{0.0, 0.0};
    double term = 1.0;
    for (int power = 0; power < kTerms; power += 2) {
        turn.cosine += term;
        term *= angle / (power + 1);
        turn.sine += term;
        term *= -angle / (power + 2);
    }
    return turn;
}

}  // namespace

CPlanTurn TurnBy(double degrees) noexcept
{
    const double inTurn = std::fmod(degrees, 360.0);
    const double quarters = std::floor(inTurn / 90.0 + 0.5);
    const CPlanTurn rest = SmallTurn(inTurn - quarters * 90.0);
    switch (static_cast<int>(quarters) & 3) {
    case 1:
        return {-rest.sine, rest.cosine};
    case 2:
        return {-rest.cosine, -rest.sine};
    case 3:
        return {rest.sine, -rest.cosine};
    default:
        return rest;
    }
}

}  // namespace satwecvt
