// Single-shot commands: what a switch does without a form of its own.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace orvik::mdlMain {

// Reads a copy script, a text file whose first line is "foldercopy", into ScriptLines, and shows
// frmMain, which runs it at load. Refuses a missing file and one of fewer than three lines with a
// message; does nothing at all when the first line is another word.
void RunCopyScript(const Text& path);

// Starts Notepad on a file as it is.
void ViewFile(const Text& path);
// Converts a text from DOS to Windows characters, in mode 1 the other way, and starts Notepad on a
// copy of it, the scratch file "Orvik.txt" in the folder for temporary files.
void ViewAsText(Text text, std::int32_t mode);
// Starts Explorer with the target of a shortcut selected.
void ShowShortcutTarget(const Text& shortcut);

// Asks for a key and scrambles a file with it, or restores it. Says "Complete" whatever came of it.
void XorFile(const Text& path);
// Scrambles every file of a tree with a key, says so, and ends the process.
[[noreturn]] void XorFolder(const Text& folder, const Text& key);

// Copies the running program over the installed one, unless they have the same checksum, and writes
// its commands into the context menu of Explorer. Ends the process. Works before the program's
// registry keys are set.
[[noreturn]] void InstallProgram();

}  // namespace orvik::mdlMain
