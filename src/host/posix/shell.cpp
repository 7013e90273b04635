#include "host/posix/shell.h"

#include <unistd.h>

#include "host/posix/command_line.h"
#include "host/posix/open_file.h"
#include "host/posix/start_program.h"
#include "host/posix/trash.h"

namespace orvik::host::posix {
namespace {

bool IsPath(TextView word) { return word.find_first_of(u"\\/") != TextView::npos; }

bool IsInDriveForm(TextView word) {
  return word.size() >= 3 && word[1] == u':' && (word[2] == u'\\' || word[2] == u'/');
}

}  // namespace

bool PosixShell::Recycle(const Text& path, Questions /*questions*/) {
  const std::optional<Entry> entry = files_.finder().LookAtLink(path);
  if (!entry || entry->path.IsRoot()) return false;
  if (entry->IsFile() && IsHeld(entry->path.c_str())) return false;
  if (!MoveToTrash(entry->path.text)) return false;
  files_.finder().Gone(entry->path);
  return true;
}

// A file that can be run; nothing when there is none. A bare name is left to the search of PATH.
std::optional<std::string> PosixShell::ProgramPath(const Text& name) {
  if (!IsPath(name)) return name.empty() ? std::nullopt : std::optional(ToUtf8(name));
  const std::optional<Entry> entry = files_.finder().Look(name);
  if (!entry || !entry->IsFile() || ::access(entry->path.c_str(), X_OK) != 0) return std::nullopt;
  return entry->path.text;
}

std::string PosixShell::Argument(const Text& word) {
  if (IsInDriveForm(word)) {
    if (const std::optional<Entry> entry = files_.finder().Look(word)) return entry->path.c_str();
    if (const std::optional<NativePath> path = files_.finder().Translate(word))
      return path->c_str();
  }
  return ToUtf8(word);
}

bool PosixShell::Start(const Text& command_line, WindowState /*window*/) {
  for (const ProgramReading& reading : ProgramReadings(command_line)) {
    const std::optional<std::string> program = ProgramPath(reading.program);
    if (!program) continue;
    std::vector<std::string> words = {*program};
    for (const Text& word : WordsOf(reading.rest)) words.push_back(Argument(word));
    return StartProgram(words);
  }
  return false;
}

}  // namespace orvik::host::posix
