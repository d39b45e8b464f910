// What a look at the members' sections and grades tells.
#pragma once

#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Members that name a section which is not defined; sections in use whose kind has no lines in a model text file.
/// A section that differs from a later one of its number, which is what members get.
void TellReplacedSections(const CSatweModel& model, CFindingListener& listener);

void TellSections(const CSatweModel& model, CFindingListener& listener);

/// Grades in use for which a default is taken, story by story.
void TellGrades(const CSatweModel& model, CFindingListener& listener);

}  // namespace satwecvt
