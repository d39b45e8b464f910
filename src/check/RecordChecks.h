// What a look at single records tells: keys, numbers, thicknesses, nodes and sections that are named and not there.
#pragma once

#include "check/FrameList.h"
#include "check/HangingParts.h"
#include "check/NodeList.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Stories whose key no block of the load file can have.
void TellStoryKeys(const CSatweModel& model, CFindingListener& listener);

/// Nodes that another node has taken the number of.
void TellReplacedNodes(const CSatweModel& model, const CNodeList& nodes, CFindingListener& listener);

/// Frame elements that name a node which is not there.
void TellMissingNodes(const CSatweModel& model, const CFrameList& frames, CFindingListener& listener);

/// How many nodes of each level no element names.
void TellUnusedNodes(const CSatweModel& model, const CNodeList& nodes, const CHangingParts& parts,
                     CFindingListener& listener);

/// Walls and plates without thickness.
void TellThicknesses(const CSatweModel& model, CFindingListener& listener);

}  // namespace satwecvt
