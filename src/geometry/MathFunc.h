// The vector routines that the wall, plate and load writers need. Pure functions of their arguments: no state,
// no failure but that of `Normalize`.
#pragma once

#include <cmath>

namespace satwecvt {

// Known to the compiler: some initialise constants of a header in an order of their own.
inline constexpr double PI = 3.141592653589793;  // 4 * atan(1)
inline constexpr double RAD2DEG = 180.0 / PI;
inline constexpr double DEG2RAD = PI / 180.0;

/// The shortest vector length that `CMathFunc::Normalize` accepts, in the unit of the coordinates.
inline constexpr double EPS_LEN = 1e-15;

/// Vector routines; a point or vector is three doubles in the order x, y, z.
class CMathFunc {
public:
    /// The distance between two points, in the unit of the coordinates.
    static double Distance(double x1, double y1, double z1, double x2, double y2, double z2) noexcept;

    /// The angle between two unit vectors in degrees, 0 to 180. It does not divide by their lengths: for other
    /// vectors it is the angle of the clamped dot product. A NaN stays a NaN.
    static double AngleDeg(const double* a, const double* b) noexcept;

    /// Writes the unit vector of `v` to `u` and returns 1; returns 0 and leaves `u` as it was when `v` is shorter
    /// than `EPS_LEN`.
    static int Normalize(const double* v, double* u) noexcept;
};

}  // namespace satwecvt
