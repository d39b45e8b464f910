// What findings say of single load records: left out, or written with another force.
#pragma once

#include "check/BoundedForce.h"
#include "check/LoadedObject.h"
#include "satwecvt/Finding.h"

#include <cstdint>
#include <span>
#include <vector>

namespace satwecvt {

/// What became of a record.
struct CLostForce {
    enum class EKind {
        LeftOut,    // it has no line in the model
        OnNothing,  // its line names an element that is not there
        Part,       // its line lacks a force
    };

    std::int64_t line = 0;  // of the record in the load file
    EKind kind = EKind::LeftOut;
    double force = 0.0;  // that is missing, downward; below 0 when it is added
};

class CLostForces {
public:
    /// The findings may be in any order. Those of dead loads stand twice.
    explicit CLostForces(std::span<const CFinding> findings);

    /// What became of a record, by its line; null for one that is written as it is.
    const CLostForce* Find(std::int64_t line) const;

private:
    std::vector<CLostForce> lost;  // in the order of the lines
};

/// The force that a line lacks, with what is lost of its digits where places far from the beam are subtracted.
CBoundedForce MissingPart(const CLostForce& lost, const T_SATWE_STLD_D& load, const CLoadedObject& object);

}  // namespace satwecvt
