#include "check/LostForces.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace satwecvt {

namespace {

using EKind = CLostForce::EKind;

/// What a finding says of a load record; none when it says nothing of its force.
std::optional<EKind> KindOf(const CFinding& finding)
{
    switch (finding.code) {
    case EFinding::LoadNodeMissing:
        // On the node itself the load is written.
        return finding.severity == ESeverity::Loss ? std::optional(EKind::LeftOut) : std::nullopt;
    case EFinding::LoadType:
    case EFinding::LoadStoryMissing:
    case EFinding::LoadBeamMissing:
    case EFinding::LoadWallMissing:
    case EFinding::ZeroLoad:
        return EKind::LeftOut;
    case EFinding::LoadOnLostWall:
        return EKind::OnNothing;
    case EFinding::LoadCut:
    case EFinding::TrapezoidAsTriangle:
        return EKind::Part;
    default:
        return std::nullopt;
    }
}

}  // namespace

CLostForces::CLostForces(std::span<const CFinding> findings)
{
    for (const CFinding& finding : findings) {
        if (const auto kind = KindOf(finding)) {
            lost.push_back({finding.place.line, *kind, finding.values[0]});
        }
    }
    const auto isBefore = [](const CLostForce& a, const CLostForce& b) { return a.line < b.line; };
    std::sort(lost.begin(), lost.end(), isBefore);
    const auto isSame = [](const CLostForce& a, const CLostForce& b) { return a.line == b.line; };
    lost.erase(std::unique(lost.begin(), lost.end(), isSame), lost.end());
}

const CLostForce* CLostForces::Find(std::int64_t line) const
{
    const auto found = std::lower_bound(lost.begin(), lost.end(), line,
                                        [](const CLostForce& a, std::int64_t wanted) { return a.line < wanted; });
    return found != lost.end() && found->line == line ? &*found : nullptr;
}

CBoundedForce MissingPart(const CLostForce& lost, const T_SATWE_STLD_D& load, const CLoadedObject& object)
{
    const auto& v = load.value;
    const bool isLinear = load.loadType == ELoadType::BeamLinear;
    const double intensity = isLinear ? std::abs(v[0]) + std::abs(v[1]) : std::abs(v[0]);
    const double places = isLinear ? std::abs(v[2]) + std::abs(v[3]) : std::abs(v[1]) + 2.0 * std::abs(v[2]);
    const double length = object.length ? object.length->value : 0.0;
    constexpr double kRoundings = 4.0;
    return {
        {}, {}, {lost.force, kRoundings * bounded::RoundingOf(intensity * (places + length)) + bounded::kUnderflow}};
}

}  // namespace satwecvt
