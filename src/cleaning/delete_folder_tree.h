// The deletion of a folder with all that is in it.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// Deletes everything below a folder for good, against the attributes of files, and the folder
// itself unless it is the root of a drive. A link to a folder is a folder: what stands behind it
// goes too. Throws Failure at the first thing that resists, through all levels: what comes behind
// it isn't visited.
void DeleteFolderTree(Text path);

}  // namespace orvik::mdlSupport
