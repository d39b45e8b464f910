#pragma once

#include "picture/Picture.h"
#include "picture/StoryPlans.h"

#include <string>

namespace satwecvt {

/// A picture as one file that a browser opens: the page's program, and the data in base64, which is no markup whatever
/// they hold. It has the plans of all stories where that leaves it at most a megabyte and 100 bytes an element long.
std::string Page(const CPicture& picture, const CStoryPlans& plans);

}  // namespace satwecvt
