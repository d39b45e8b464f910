// What a look at the members' sections and grades tells.
#pragma once

#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Members that name a section which is not defined; sections in use whose kind has no lines in a model text file.
void TellSections(const CSatweModel& model, CFindingListener& listener);

/// Grades in use for which a default is taken, story by story.
void TellGrades(const CSatweModel& model, CFindingListener& listener);

}  // namespace satwecvt
