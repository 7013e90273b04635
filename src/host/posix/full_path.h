// Paths as they are written down for later: whole, and without variables.
#pragma once

#include "base/text.h"
#include "host/system.h"

namespace orvik::host::posix {

// The path from its drive or share on, as Windows completes one: a relative path is below the
// current folder, which is a full path itself; "." and ".." are worked out; blanks and dots at the
// end and a closing backslash are dropped, but for the backslash of a drive's root. Nothing is
// looked at on disk. Empty for an empty path.
Text FullPath(TextView path, TextView current_folder);

// True for a path that begins with a drive and a backslash, or with a share.
bool IsFullPath(TextView path);

// The text with each "%NAME%" replaced by the variable of the environment, whatever its case. A
// variable that doesn't exist stays as it is written.
Text ExpandVariables(TextView text, System& system);

}  // namespace orvik::host::posix
