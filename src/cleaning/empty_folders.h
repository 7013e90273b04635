// Which folders of a tree count as empty.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvik::mdlMain {

// The folders of a tree, the root first and breadth first from there, whose files weigh no more
// than a limit in bytes, all levels together. The empty text stands for all drives, of which only
// the last one is judged. Weights are those of GetTreeSize, so a file of 2 GiB or more may take
// weight away; a folder that can't be read weighs nothing.
std::vector<Text> FindEmptyFolders(const Text& folder, std::int32_t limit);

}  // namespace orvik::mdlMain
