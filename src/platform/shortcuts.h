// Shortcuts: written, read, and repaired when their target has moved to another drive.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// Opens a shortcut, or makes one, and saves it with these values. Empty arguments, an empty
// description and an empty icon aren't set: an opened shortcut keeps its own.
void SaveShortcut(const Text& shortcut, const Text& arguments, const Text& description,
                  int window_style, const Text& target, const Text& working_folder,
                  const Text& icon_location);

// Where a shortcut leads; empty for a missing file and for one that isn't a shortcut.
Text ShortcutTarget(const Text& shortcut);

}  // namespace orvik::mdlSupport

namespace orvik::mdlMain {

// Repairs a shortcut whose target is gone and stands under the same path on another fixed drive,
// the first that has it. The new one is saved under its bare name, in the current folder, and only
// the target and its folder are set. An unreadable shortcut leads to the first fixed drive itself.
void CheckShortcut(const Text& shortcut);

// Checks all shortcuts of a tree if there are at least two, then says so in any case.
void CheckShortcutFolder(const Text& folder);

}  // namespace orvik::mdlMain
