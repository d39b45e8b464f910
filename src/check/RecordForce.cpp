#include "check/RecordForce.h"

#include <cmath>

namespace satwecvt {

namespace {

constexpr double kLengthToSpare = 1e-6;

CBoundedForce Downward(const CBounded& z)
{
    return {{}, {}, z};
}

/// A place that is no number is in front, too.
bool IsInFront(double place, double start, double toSpare)
{
    return !(place >= start - toSpare);
}

/// Whether a load between two places is in front of its beam or of its own start. One that ends at the very beginning
/// of the beam is, too, however short it is: a pair of 0, 0 is what a line of the model ends with.
bool LiesInFront(double start, double end, double toSpare)
{
    return IsInFront(start, 0.0, toSpare) || IsInFront(end, start, toSpare) || (start < 0.0 && end <= 0.0);
}

std::optional<CBoundedForce> OfLinear(const T_SATWE_STLD_D& load, double toSpare)
{
    const auto& value = load.value;
    if (LiesInFront(value[2], value[3], toSpare)) {
        return std::nullopt;
    }
    const CBounded mean = Half(Exactly(value[0])) + Half(Exactly(value[1]));
    return Downward(mean * (Exactly(value[3]) - Exactly(value[2])));
}

std::optional<CBoundedForce> OfTriangle(const T_SATWE_STLD_D& load, double toSpare)
{
    const auto& value = load.value;
    if (LiesInFront(value[1], value[1] + 2.0 * value[2], toSpare) || IsInFront(value[2], 0.0, 0.5 * toSpare)) {
        return std::nullopt;
    }
    return Downward(Exactly(value[0]) * Exactly(value[2]));
}

std::optional<CBoundedForce> OfTrapezoid(const T_SATWE_STLD_D& load, const CBounded& length)
{
    const double slope = load.value[1];
    const double toSpare = kLengthToSpare * length.value;
    if (!(length.value > 0.0) || IsInFront(slope, 0.0, toSpare) || IsInFront(0.5 * length.value, slope, toSpare)) {
        return std::nullopt;
    }
    return Downward(Exactly(load.value[0]) * (length - Exactly(slope)));
}

/// The wall's end nodes share the force; a wall without a length cannot.
std::optional<CBoundedForce> OfWallForce(const T_SATWE_STLD_D& load, const std::optional<CBounded>& length)
{
    const auto& [p, a, unused2, unused3] = load.value;
    if (length && !(std::isfinite((length->value - a) * p / length->value) && std::isfinite(p * a / length->value))) {
        return std::nullopt;
    }
    return Downward(Exactly(p));
}

std::optional<CBoundedForce> OfObject(const T_SATWE_STLD_D& load, const CLoadedObject& object)
{
    const auto& value = load.value;
    if (object.length && !std::isfinite(object.length->value)) {
        return std::nullopt;
    }
    const double toSpare = object.length ? kLengthToSpare * object.length->value : 0.0;
    switch (load.loadType) {
    case ELoadType::BeamLinear:
        return OfLinear(load, toSpare);
    case ELoadType::BeamTriangle:
        return OfTriangle(load, toSpare);
    case ELoadType::WallForce:
        return OfWallForce(load, object.length);
    default:
        break;
    }
    if (!object.length) {
        return std::nullopt;
    }
    return load.loadType == ELoadType::BeamTrapezoid ? OfTrapezoid(load, *object.length)
                                                     : Downward(Exactly(value[0]) * *object.length);
}

std::optional<CBoundedForce> OfAnyType(const T_SATWE_STLD_D& load, const CLoadedObject& object)
{
    const auto& value = load.value;
    switch (load.loadType) {
    case ELoadType::BeamForce:
    case ELoadType::NodeForceMoments:
        return Downward(Exactly(value[0]));
    case ELoadType::NodeForces:
        return CBoundedForce{Exactly(value[1]), Exactly(value[2]), Exactly(value[0])};
    case ELoadType::BeamLinear:
    case ELoadType::BeamTriangle:
    case ELoadType::BeamTrapezoid:
    case ELoadType::WallForce:
    case ELoadType::WallLine:
        return OfObject(load, object);
    default:
        return std::nullopt;
    }
}

}  // namespace

std::optional<CBoundedForce> RecordForce(const T_SATWE_STLD_D& load, const CLoadedObject& object)
{
    const std::optional<CBoundedForce> force = OfAnyType(load, object);
    return force && force->IsFinite() ? force : std::nullopt;
}

}  // namespace satwecvt
