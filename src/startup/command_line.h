// The arguments within a process's whole command line.
#pragma once

#include "base/text.h"

namespace orvik {

// What stands behind the program's name, raw: the name ends at the first character up to a blank
// outside of double quotes, and the run of such characters behind it goes too. Blanks at the end
// stay.
TextView BehindProgramName(TextView command_line);

}  // namespace orvik
