// What the desktop does for the program on Linux.
#pragma once

#include "host/posix/file_system.h"
#include "host/shell.h"
#include "host/shell_link/shortcut_link.h"
#include "host/system.h"

namespace orvik::host::posix {

class PosixShell : public Shell {
 public:
  PosixShell(PosixFileSystem& files, System& system) : files_(files), system_(system) {}

  // Into the trash folder. There is no dialog of the desktop's, so nobody is asked.
  bool Recycle(const Text& path, Questions questions) override;
  // Paths in drive form become paths of Linux, the program's and those among its arguments. How the
  // window comes up is the desktop's affair.
  bool Start(const Text& command_line, WindowState window) override;

  // shortcuts.cpp
  std::optional<Shortcut> ReadShortcut(const Text& path) override;
  bool WriteShortcut(const Text& path, const Shortcut& shortcut) override;

 private:
  TargetFacts FactsOf(const Text& target);
  std::optional<std::string> ProgramPath(const Text& name);
  std::string Argument(const Text& word);

  PosixFileSystem& files_;
  System& system_;
};

}  // namespace orvik::host::posix
