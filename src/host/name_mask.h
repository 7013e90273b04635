// Which file names a mask lets through.
#pragma once

#include "base/text.h"

namespace orvik::host {

// True when a name fits a mask: "*" is any run of characters, "?" exactly one character, everything
// else itself without letter case. "*.*" fits every name. A mask that ends in ".*" also fits the
// names that its front part fits by itself, and one that ends in "." the names that hold no dot and
// fit the rest of the mask. Only the name itself is looked at, never a short name that
// the system made up for it. An empty mask fits nothing.
bool FitsMask(TextView name, TextView mask);

}  // namespace orvik::host
