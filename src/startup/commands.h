// Single-shot commands: what a switch does without a form of its own.
#pragma once

#include "base/text.h"

namespace orvik::mdlMain {

// Reads a copy script, a text file whose first line is "foldercopy", into ScriptLines, and shows
// frmMain, which runs it at load. Refuses a missing file and one of fewer than three lines with a
// message; does nothing at all when the first line is another word.
void RunCopyScript(const Text& path);

}  // namespace orvik::mdlMain
