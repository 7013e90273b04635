// Programs that run without the desktop shell: it is ended first and comes back behind them.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// The 8.3 name of a file, without its folder; empty for a missing file.
Text GetShortName(const Text& path);

}  // namespace orvik::mdlSupport

namespace orvik::mdlMain {

// Writes a batch file into the folder for temporary files, in code page 866, and starts it without
// waiting: it ends the shell, runs the program to its end, and starts the shell again. Whether the
// program exists isn't looked at. The batch file stays.
void RunAsSystem(const Text& program);

// Replaces a shortcut by one that runs its target through RunAsSystem; the old one goes to the
// Recycle Bin. One that leads to this program already stays. Ends the process.
[[noreturn]] void RedirectShortcut(const Text& shortcut);

}  // namespace orvik::mdlMain
