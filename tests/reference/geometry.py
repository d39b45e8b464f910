"""Distance, direction and angle of points and vectors given as lists of x, y, z."""

import math

from c_values import square_root

PI = 4.0 * math.atan(1.0)
RAD2DEG = 180.0 / PI
EPS_LEN = 1e-15


def distance(first, second):
    dx = first[0] - second[0]
    dy = first[1] - second[1]
    dz = first[2] - second[2]
    total = dy * dy + dx * dx
    total = total + dz * dz
    if total < 0.0:
        total = 0.0
    return square_root(total)


def angle_deg(a, b):
    """Angle between two unit vectors; a NaN stays a NaN."""
    cosine = (a[1] * b[1] + a[0] * b[0]) + a[2] * b[2]
    if cosine > 1.0:
        cosine = 1.0
    if cosine < -1.0:
        cosine = -1.0
    return math.acos(cosine) * RAD2DEG


def normalize(vector, result):
    """Write the unit vector into result and return 1; a vector too short leaves result as it is."""
    length = square_root(vector[0] * vector[0] + vector[1] * vector[1] + vector[2] * vector[2])
    if EPS_LEN > length:
        return 0
    for axis in range(3):
        result[axis] = vector[axis] / length
    return 1
