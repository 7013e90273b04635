// The way into the program.
#pragma once

#include "base/text.h"

namespace orvik::mdlMain {

// Reads the raw command line, shows the one form or carries out the one action that its switch
// names, and returns. The host and the front end are in place before. May end the process.
void Main(const Text& command_line);

}  // namespace orvik::mdlMain
