#pragma once

namespace satwecvt {

/// A turn against the clock, by its cosine and sine.
struct CPlanTurn {
    double cosine = 1.0;
    double sine = 0.0;
};

/// By an angle in degrees, which is a number. The libraries of two systems can differ in the last bit of a sine: here
/// every one computes the same, and quarters of a turn are exact.
CPlanTurn TurnBy(double degrees) noexcept;

}  // namespace satwecvt
