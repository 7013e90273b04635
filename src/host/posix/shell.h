// What the desktop does for the program on Linux.
#pragma once

#include "host/posix/path_finder.h"
#include "host/shell.h"

namespace orvik::host::posix {

// Shortcuts aren't read or written yet: no file is one, and none is made.
class PosixShell : public Shell {
 public:
  explicit PosixShell(PathFinder& finder) : finder_(finder) {}

  // Into the trash folder. There is no dialog of the desktop's, so nobody is asked.
  bool Recycle(const Text& path, Questions questions) override;
  std::optional<Shortcut> ReadShortcut(const Text& path) override;
  bool WriteShortcut(const Text& path, const Shortcut& shortcut) override;
  // Paths in drive form become paths of Linux, the program's and those among its arguments. How the
  // window comes up is the desktop's affair.
  bool Start(const Text& command_line, WindowState window) override;

 private:
  std::optional<std::string> ProgramPath(const Text& name);
  std::string Argument(const Text& word);

  PathFinder& finder_;
};

}  // namespace orvik::host::posix
