// The end of a process by its name.
#pragma once

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlKillProcess {

// Ends every process whose file name ends in this, letter case ignored: "ps.exe" ends "gps.exe" as
// well, and an empty name fits all. True when one fitted, also when it resisted.
Flag KillProcess(const Text& name);

}  // namespace orvik::mdlKillProcess
