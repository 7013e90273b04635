#include "unit/support/fake_host.h"

namespace orvik::test {

bool FakeShell::Recycle(const Text& path, host::Questions) {
  if (refuses || !files_.Take(path)) return false;
  recycled.push_back(path);
  return true;
}

std::optional<host::Shortcut> FakeShell::ReadShortcut(const Text& path) {
  const auto found = shortcuts.find(ToLower(TextView(path)));
  if (found == shortcuts.end() || !files_.Exists(path)) return std::nullopt;
  return found->second;
}

bool FakeShell::WriteShortcut(const Text& path, const host::Shortcut& shortcut) {
  if (!files_.Open(path, host::OpenMode::kReadWriteCreate)) return false;
  shortcuts[ToLower(TextView(path))] = shortcut;
  return true;
}

void FakeShell::AddShortcut(const Text& path, const host::Shortcut& shortcut) {
  files_.AddFile(path);
  shortcuts[ToLower(TextView(path))] = shortcut;
}

bool FakeShell::Start(const Text& command_line, host::WindowState window) {
  started.push_back({command_line, window});
  return starts;
}

bool FakeProcesses::Terminate(const host::Process& process) {
  if (resist) return false;
  ended.push_back(process.file_name);
  return std::erase_if(running, [&](const auto& one) { return one.id == process.id; }) > 0;
}

std::optional<Text> FakeSystem::EnvironmentEntry(int index) {
  if (index < 1 || static_cast<std::size_t>(index) > environment.size()) return std::nullopt;
  return environment[static_cast<std::size_t>(index) - 1];
}

}  // namespace orvik::test
