// The shell of Windows.
#pragma once

#include <memory>

#include "host/shell.h"

namespace orvik::host::win32 {

class ComApartment;

class Win32Shell : public Shell {
 public:
  Win32Shell();
  ~Win32Shell() override;
  Win32Shell(const Win32Shell&) = delete;
  Win32Shell& operator=(const Win32Shell&) = delete;

  bool Recycle(const Text& path, Questions questions) override;
  bool Start(const Text& command_line, WindowState window) override;

  // shortcuts.cpp
  std::optional<Shortcut> ReadShortcut(const Text& path) override;
  bool WriteShortcut(const Text& path, const Shortcut& shortcut) override;

 private:
  // Opens COM at the first shortcut: most runs of the program see none.
  void NeedCom();

  std::unique_ptr<ComApartment> com_;
};

}  // namespace orvik::host::win32
