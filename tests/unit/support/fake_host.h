// A whole host in memory, for tests of the program's logic.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/host.h"
#include "unit/support/fake_file_system.h"
#include "unit/support/fake_registry.h"

namespace orvik::test {

// A shortcut with a target and nothing else.
inline host::Shortcut LeadingTo(Text target) {
  host::Shortcut shortcut;
  shortcut.target = std::move(target);
  return shortcut;
}

class FakeShell : public host::Shell {
 public:
  explicit FakeShell(FakeFileSystem& files) : files_(files) {}

  bool Recycle(const Text& path, host::Questions questions) override;
  // Shortcuts are those of `shortcuts` whose file exists; writing one makes the file.
  std::optional<host::Shortcut> ReadShortcut(const Text& path) override;
  bool WriteShortcut(const Text& path, const host::Shortcut& shortcut) override;
  bool Start(const Text& command_line, host::WindowState window) override;

  void AddShortcut(const Text& path, const host::Shortcut& shortcut);

  bool refuses = false;  // the bin takes nothing
  bool starts = true;    // the answer of Start
  std::vector<Text> recycled;
  struct Started {
    Text command_line;
    host::WindowState window;
  };
  std::vector<Started> started;
  std::map<Text, host::Shortcut> shortcuts;  // by path in lower case

 private:
  FakeFileSystem& files_;
};

class FakeProcesses : public host::Processes {
 public:
  std::vector<host::Process> Snapshot() override { return running; }
  bool Terminate(const host::Process& process) override;

  std::vector<host::Process> running;
  std::vector<Text> ended;
  bool resist = false;
};

class FakeSystem : public host::System {
 public:
  std::optional<Text> EnvironmentEntry(int index) override;
  int PlatformId() override { return platform_id; }
  Text SystemFolder() override { return u"C:\\Windows\\system32"; }
  Text OwnPath() override { return own_path; }
  host::MemoryStatus Memory() override { return memory; }
  host::DateTime Now() override { return now; }
  std::uint32_t Ticks() override { return ticks; }
  const CodePage& AnsiPage() override { return CodePage::Numbered(ansi_page); }
  const CodePage& OemPage() override { return CodePage::Numbered(866); }

  std::vector<Text> environment = {u"windir=C:\\Windows", u"TEMP=C:\\Windows\\Temp",
                                   u"ProgramFiles=C:\\Program Files"};
  int platform_id = 2;
  Text own_path = u"C:\\Orvik.exe";
  host::MemoryStatus memory;
  host::DateTime now = {2024, 2, 29, 13, 5, 9};
  std::uint32_t ticks = 0;
  int ansi_page = 1251;
};

// Installs itself.
class FakeHost {
 public:
  FakeHost() { host::Install(services()); }
  host::Host services() { return {&files, &registry, &shell, &processes, &system}; }

  FakeFileSystem files;
  FakeRegistry registry;
  FakeShell shell{files};
  FakeProcesses processes;
  FakeSystem system;
};

}  // namespace orvik::test
