// What the desktop shell does for the program.
#pragma once

#include <optional>

#include "base/text.h"

namespace orvik::host {

struct Shortcut {
  Text target;
  Text arguments;
  Text description;
  Text working_folder;
  Text icon_location;
  int window_style = 1;
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

  // Nothing when the file is missing or isn't a shortcut.
  virtual std::optional<Shortcut> ReadShortcut(const Text& path) = 0;
  virtual bool WriteShortcut(const Text& path, const Shortcut& shortcut) = 0;

  // Starts a command line and doesn't wait. False when nothing was started.
  virtual bool Start(const Text& command_line, WindowState window) = 0;
};

}  // namespace orvik::host
