// The command line of the headless program.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/text.h"
#include "host/registry.h"
#include "host/system.h"

namespace orvik::forms::headless {

// The systems differ in a few options and in how paths are written.
enum class Platform { kPosix, kWindows };

struct RegistryEntry {
  host::Registry::Handle root = 0;
  Text path;
  host::RegistryValue value;
};

struct LockEntry {
  Text path;
  std::optional<std::int64_t> until;  // ms of run time; nothing: for ever
};

struct Options {
  Text line;                          // the command line that the program gets
  std::optional<std::string> script;  // a file of the system, "-" for standard input
  std::map<char16_t, std::string> drives;
  std::map<char16_t, int> drive_types;
  std::optional<std::string> registry;
  std::vector<RegistryEntry> registry_entries;
  std::optional<int> code_page;
  std::vector<Text> environment;  // "NAME=VALUE"; empty: the real one
  std::vector<LockEntry> locks;
  std::optional<host::DateTime> now;
  std::optional<std::int64_t> max_calls;
  std::optional<std::int64_t> max_time;
  bool real_time = false;
  bool run_programs = false;
  bool trace = false;
};

// Reads the arguments (UTF-8, without the program's name). Nothing when one of them is bad;
// `reason` then says in one line which and why.
std::optional<Options> ParseOptions(std::span<const std::string> arguments, Platform platform,
                                    std::string& reason);

}  // namespace orvik::forms::headless
