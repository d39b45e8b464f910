#include "geometry/MathFunc.h"

namespace satwecvt {

double CMathFunc::Distance(double x1, double y1, double z1, double x2, double y2, double z2) noexcept
{
    const double dx = x1 - x2;
    const double dy = y1 - y2;
    const double dz = z1 - z2;
    // The order of the sum is part of the result's bits: y and x first, then z.
    const double sum = dy * dy + dx * dx + dz * dz;
    return std::sqrt(sum < 0.0 ? 0.0 : sum);
}

double CMathFunc::AngleDeg(const double* a, const double* b) noexcept
{
    double c = (a[1] * b[1] + a[0] * b[0]) + a[2] * b[2];
    // Rounding may carry the product of two unit vectors past 1, where the arc cosine is undefined.
    if (c > 1.0) {
        c = 1.0;
    }
    if (c < -1.0) {
        c = -1.0;
    }
    return std::acos(c) * RAD2DEG;
}

int CMathFunc::Normalize(const double* v, double* u) noexcept
{
    const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (EPS_LEN > length) {
        return 0;
    }
    u[0] = v[0] / length;
    u[1] = v[1] / length;
    u[2] = v[2] / length;
    return 1;
}

}  // namespace satwecvt
