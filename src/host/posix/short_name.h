// The 8.3 names that DOS programs know files by.
#pragma once

#include <vector>

#include "base/text.h"

namespace orvik::host::posix {

// True when a name is a short name as it stands, in any case: up to eight characters, a dot and up
// to three more, and no blank or other character that DOS doesn't take.
bool FitsShortName(TextView name);

// The short name of a name among the names of its folder, which come in the order of listings. A
// name that fits is its own, in capitals. Another one is its first six characters, "~" and a
// number, counted over the names that would be the same without; the number is never one that
// another file has as its real name.
Text ShortNameAmong(TextView name, const std::vector<Text>& folder);

}  // namespace orvik::host::posix
