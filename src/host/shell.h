// What the desktop shell does for the program.
#pragma once

#include <optional>

#include "base/text.h"

namespace orvik::host {

struct Shortcut {
  Text target;  // a full path without a closing backslash, but for the root of a drive
  Text arguments;
  Text description;
  Text working_folder;
  Text icon_location;    // "path", or "path,index" for another icon than the first
  int window_style = 1;  // the number as it is stored, whatever it is
};

// How the window of a started program comes up.
enum class WindowState { kNormal = 1, kMinimised = 2 };

// Whether the shell asks its own questions.
enum class Questions { kAsked, kSilent };

class Shell {
 public:
  virtual ~Shell() = default;

  // Moves a file or folder to the Recycle Bin, from which it can be brought back. False when it
  // stays, by the user's answer or because the bin refused. It is never deleted for good instead
  // without a question.
  virtual bool Recycle(const Text& path, Questions questions) = 0;

  // Nothing when the file is missing, isn't a shortcut or isn't whole. A shortcut without a target
  // gives an empty one. Variables of the environment in a target come expanded.
  virtual std::optional<Shortcut> ReadShortcut(const Text& path) = 0;
  // Makes or replaces the file. The target needn't exist; its variables are expanded, quotes around
  // it dropped, and one that is relative is made full. False when the file can't be written, is
  // read-only or in use, a text is longer than 32766 characters or the target longer than a path.
  virtual bool WriteShortcut(const Text& path, const Shortcut& shortcut) = 0;

  // Starts a command line and doesn't wait. False when nothing was started.
  virtual bool Start(const Text& command_line, WindowState window) = 0;
};

}  // namespace orvik::host
