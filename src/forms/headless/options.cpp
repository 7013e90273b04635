#include "forms/headless/options.h"

#include <algorithm>
#include <string_view>

#include "forms/headless/values.h"

namespace orvik::forms::headless {

namespace {

constexpr std::int64_t kLargestInt = 0x7FFFFFFF;

// Each reader takes an option's value into the options; false when the value is bad.
using Reader = bool (*)(Options&, const std::string&);
using Number = std::optional<std::int64_t>;

bool ReadScript(Options& options, const std::string& value) {
  options.script = value;
  return !value.empty();
}

// "X=..." for the letter of a drive; what stands behind goes to `rest`.
std::optional<char16_t> ReadLetter(const std::string& value, std::string& rest) {
  if (value.size() < 3 || value[1] != '=') return std::nullopt;
  const char16_t letter = ToUpper(static_cast<char16_t>(value[0]));
  if (letter < u'A' || letter > u'Z') return std::nullopt;
  rest = value.substr(2);
  return letter;
}

bool ReadDrive(Options& options, const std::string& value) {
  std::string folder;
  const auto letter = ReadLetter(value, folder);
  if (letter) options.drives[*letter] = folder;
  return letter.has_value();
}

bool ReadDriveType(Options& options, const std::string& value) {
  std::string type;
  const auto letter = ReadLetter(value, type);
  const Number number = ReadNumber(type, kLargestInt);
  if (letter && number) options.drive_types[*letter] = static_cast<int>(*number);
  return letter && number;
}

bool ReadRegistryFile(Options& options, const std::string& value) {
  options.registry = value;
  return !value.empty();
}

bool ReadRegistryEntry(Options& options, const std::string& value) {
  const Text text = FromUtf8(value);
  const std::size_t name = text.find(u'|');
  const std::size_t data = name == Text::npos ? name : text.find(u'|', name + 1);
  if (data == Text::npos) return false;
  auto key = ReadKeyPath(TextView(text).substr(0, name));
  if (!key) return false;
  options.registry_entries.push_back(
      {key->root, key->path, {text.substr(name + 1, data - name - 1), text.substr(data + 1)}});
  return true;
}

bool ReadCodePage(Options& options, const std::string& value) {
  const Number number = ReadNumber(value, kLargestInt);
  if (number) options.code_page = static_cast<int>(*number);
  return number.has_value();
}

bool ReadEnvironment(Options& options, const std::string& value) {
  options.environment.push_back(FromUtf8(value));
  const std::size_t sign = value.find('=');
  return sign != std::string::npos && sign > 0;
}

// A path may hold an "@" itself: only digits behind the last one are a time.
bool ReadLock(Options& options, const std::string& value) {
  const std::size_t at = value.rfind('@');
  const Number until = at == std::string::npos ? Number() : ReadNumber(value.substr(at + 1));
  const std::string path = until ? value.substr(0, at) : value;
  options.locks.push_back({FromUtf8(path), until});
  return !path.empty();
}

bool ReadNow(Options& options, const std::string& value) {
  options.now = ReadDateTime(value);
  return options.now.has_value();
}

bool ReadMaxCalls(Options& options, const std::string& value) {
  options.max_calls = ReadNumber(value);
  return options.max_calls.has_value();
}

bool ReadMaxTime(Options& options, const std::string& value) {
  options.max_time = ReadNumber(value);
  return options.max_time.has_value();
}

struct Known {
  std::string_view name;
  Reader reader;                  // of options with a value
  bool Options::*flag = nullptr;  // of those without one
  bool posix_only = false;
};
constexpr Known kKnown[] = {
    {"--script", ReadScript},
    {"--drive", ReadDrive, nullptr, true},
    {"--drive-type", ReadDriveType, nullptr, true},
    {"--registry", ReadRegistryFile, nullptr, true},
    {"--reg", ReadRegistryEntry},
    {"--code-page", ReadCodePage, nullptr, true},
    {"--env", ReadEnvironment},
    {"--lock", ReadLock},
    {"--now", ReadNow},
    {"--max-calls", ReadMaxCalls},
    {"--max-time", ReadMaxTime},
    {"--real-time", nullptr, &Options::real_time},
    {"--run-programs", nullptr, &Options::run_programs},
    {"--trace", nullptr, &Options::trace},
};

const Known* Find(std::string_view name, Platform platform) {
  const auto* const found = std::find_if(std::begin(kKnown), std::end(kKnown),
                                         [&](const Known& known) { return known.name == name; });
  if (found == std::end(kKnown) || (found->posix_only && platform != Platform::kPosix)) {
    return nullptr;
  }
  return found;
}

// Takes one option, whose value may be the next argument; `at` moves behind what was taken. The
// answer is the reason against it, empty when it is good.
std::string TakeOption(Options& options, std::span<const std::string> arguments, std::size_t& at,
                       Platform platform) {
  const std::string& argument = arguments[at++];
  const std::size_t sign = argument.find('=');
  const std::string name = argument.substr(0, sign);
  const Known* known = Find(name, platform);
  if (known == nullptr) return "unknown option " + name;
  if (known->flag != nullptr) {
    if (sign != std::string::npos) return "option " + name + " takes no value";
    options.*(known->flag) = true;
    return {};
  }
  std::string value;
  if (sign != std::string::npos) {
    value = argument.substr(sign + 1);
  } else if (at < arguments.size()) {
    value = arguments[at++];
  } else {
    return "option " + name + " lacks its value";
  }
  return known->reader(options, value) ? "" : "bad value of " + name + ": " + value;
}

// A path of the system behind the switch becomes one of a drive: Z: holds everything, unless it was
// given another folder, below which the path then must be.
std::string TakeLine(Options& options, std::string line, Platform platform) {
  constexpr std::size_t kSwitch = 5;
  const bool native = platform == Platform::kPosix && line.size() > kSwitch && line[0] == '/' &&
                      line[kSwitch - 1] == ' ' && line[kSwitch] == '/';
  if (native) {
    std::string path = line.substr(kSwitch);
    if (const auto drive = options.drives.find(u'Z'); drive != options.drives.end()) {
      std::string root = drive->second;
      while (root.ends_with('/')) root.pop_back();
      if (!path.starts_with(root + "/")) return "drive Z: doesn't hold " + path;
      path = path.substr(root.size());
    }
    std::replace(path.begin(), path.end(), '/', '\\');
    line = line.substr(0, kSwitch) + "Z:" + path;
  }
  options.line = FromUtf8(line);
  return {};
}

}  // namespace

std::optional<Options> ParseOptions(std::span<const std::string> arguments, Platform platform,
                                    std::string& reason) {
  Options options;
  std::optional<std::string> line;
  bool ended = false;  // by "--"
  for (std::size_t at = 0; at < arguments.size() && reason.empty();) {
    const std::string& argument = arguments[at];
    if (!ended && argument.starts_with("--")) {
      ended = argument == "--";
      if (ended) {
        ++at;
      } else {
        reason = TakeOption(options, arguments, at, platform);
      }
    } else if (line) {
      reason = "more than one command line: " + argument;
    } else {
      line = argument;
      ++at;
    }
  }
  if (reason.empty() && !line) reason = "the command line of the program is missing";
  if (reason.empty()) reason = TakeLine(options, *line, platform);
  if (!reason.empty()) return std::nullopt;
  return options;
}

}  // namespace orvik::forms::headless
