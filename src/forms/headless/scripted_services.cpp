#include "forms/headless/scripted_services.h"

#include "forms/headless/values.h"

namespace orvik::forms::headless {

bool ScriptedShell::Recycle(const Text& path, host::Questions questions) {
  // The shell asks about nothing that isn't there.
  if (!files_.PathExists(path)) return shell_.Recycle(path, host::Questions::kSilent);
  const bool yes = questions == host::Questions::kSilent || answers_.ToRecycle();
  JsonWriter& json = transcript_.Begin("recycle");
  json.Name("path").String(TextView(path));
  json.Name("answer").String(yes ? "yes" : "no");
  transcript_.End();
  return yes && !locks_.HoldsWithin(path) && shell_.Recycle(path, host::Questions::kSilent);
}

std::optional<host::Shortcut> ScriptedShell::ReadShortcut(const Text& path) {
  if (locks_.Holds(path)) return std::nullopt;
  return shell_.ReadShortcut(path);
}

bool ScriptedShell::WriteShortcut(const Text& path, const host::Shortcut& shortcut) {
  return !locks_.Holds(path) && shell_.WriteShortcut(path, shortcut);
}

bool ScriptedShell::Start(const Text& command_line, host::WindowState window) {
  JsonWriter& json = transcript_.Begin("start");
  json.Name("command").String(TextView(command_line));
  json.Name("window").Number(static_cast<int>(window));
  transcript_.End();
  return programs_ == Programs::kWritten || shell_.Start(command_line, window);
}

bool ScriptedProcesses::Terminate(const host::Process& process) {
  transcript_.Begin("kill").Name("process").String(TextView(process.file_name));
  transcript_.End();
  return programs_ == Programs::kWritten || inner_.Terminate(process);
}

std::optional<Text> ScriptedSystem::EnvironmentEntry(int index) {
  if (environment_.empty()) return inner_.EnvironmentEntry(index);
  if (index < 1 || static_cast<std::size_t>(index) > environment_.size()) return std::nullopt;
  return environment_[static_cast<std::size_t>(index) - 1];
}

host::DateTime ScriptedSystem::Now() { return Later(start_, clock_.Now()); }

}  // namespace orvik::forms::headless
