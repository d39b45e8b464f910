// Looks at a model that was read for what its author may have meant otherwise: references to what is not there,
// geometry that looks joined and is not, parts that hang in the air.
#pragma once

#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Tells the doubts and notes about a model, in an order that depends on the model alone. Takes time and memory in
/// proportion to the model. The model has to be one that was written: its counts fit its records.
void LookAtModel(const CSatweModel& model, CFindingListener& listener);

}  // namespace satwecvt
