// Plays a script on the real windows of the program and writes what there is to see.
//
//   orvik-robot --program FILE --script FILE [--patience SECONDS] [--] LINE
//
// LINE is one argument, the raw command line of the program. Exit status: 0; 1 when the program
// didn't come to rest, with the transcript so far; 2 for a bad option or script.
#include <cstdio>
#include <cwchar>
#include <optional>
#include <string>

#include "base/failure.h"
#include "robot/listed_drives.h"
#include "robot/player.h"

namespace {

using namespace orvik;

constexpr int kHung = 1;
constexpr int kBadUse = 2;

struct Options {
  Text program;
  Text script;
  Text line;
  int patience = 60'000;
};

std::optional<Options> ReadOptions(int count, wchar_t** arguments) {
  Options options;
  int at = 1;
  const auto text = [&](int i) { return robot::FromWide(arguments[i], std::wcslen(arguments[i])); };
  for (; at + 1 < count && text(at).starts_with(u"--") && text(at) != u"--"; at += 2) {
    const Text name = text(at);
    if (name == u"--program") {
      options.program = text(at + 1);
    } else if (name == u"--script") {
      options.script = text(at + 1);
    } else if (name == u"--patience") {
      options.patience = static_cast<int>(std::wcstol(arguments[at + 1], nullptr, 10)) * 1000;
    } else {
      return std::nullopt;
    }
  }
  if (at < count && text(at) == u"--") ++at;
  if (at + 1 != count || options.program.empty() || options.script.empty()) return std::nullopt;
  options.line = text(at);
  return options;
}

std::optional<std::string> ReadFile(const Text& path) {
  const HANDLE file = CreateFileW(robot::Wide(path), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes;
  char buffer[4096];
  DWORD count = 0;
  while (::ReadFile(file, buffer, sizeof buffer, &count, nullptr) != 0 && count > 0) {
    bytes.append(buffer, count);
  }
  CloseHandle(file);
  return bytes;
}

int Refuse(const std::string& reason) {
  std::fprintf(stderr, "orvik-robot: %s\n", reason.c_str());
  return kBadUse;
}

void WriteOut(std::string_view lines) {
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), lines.data(), static_cast<DWORD>(lines.size()),
            &written, nullptr);
}

int Play(robot::Program& program, const forms::headless::Script& script, int patience) {
  forms::headless::Transcript transcript(WriteOut);
  robot::Record record(transcript);
  robot::Stage stage(program, record, patience);
  int status = 0;
  try {
    robot::Player(stage).Play(script);
  } catch (const robot::Hung& hung) {
    std::fprintf(stderr, "orvik-robot: %s\n", hung.what());
    status = kHung;
  }
  if (program.Alive()) program.Kill();
  return status;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const auto options = ReadOptions(count, arguments);
  if (!options) {
    return Refuse("usage: --program FILE --script FILE [--patience SECONDS] [--] LINE");
  }
  const auto bytes = ReadFile(options->script);
  if (!bytes) return Refuse("the script can't be read");
  std::string reason;
  const auto script = forms::headless::ParseScript(*bytes, reason);
  if (!script) return Refuse(reason);
  const robot::ListedDrives drives;
  auto program = robot::Program::Start(options->program, options->line);
  if (!program) return Refuse("the program can't be started");
  try {
    return Play(*program, *script, options->patience);
  } catch (const Failure&) {
    program->Kill();
    return Refuse("the program's windows can't be read");
  }
}
