// The pattern operator, the one kind of mask that the program matches itself.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// True when the whole text matches the pattern: "?" any one character, "*" any run, "#" a digit,
// "[list]" and "[!list]" one character in or not in the list, everything else itself. Exact by
// character code, letter case included. Throws Failure on a malformed pattern: a list that isn't
// closed, a range that descends.
bool Like(TextView text, TextView pattern);

}  // namespace orvik::mdlSupport
