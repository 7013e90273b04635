// Shortcuts: ".lnk" files.
#include <algorithm>

#include "host/posix/full_path.h"
#include "host/posix/open_file.h"
#include "host/posix/replace_content.h"
#include "host/posix/shell.h"
#include "host/shell_link/shortcut_link.h"
#include "host/shortcut_fields.h"

namespace orvik::host::posix {
namespace {

// Far more than all the texts can take. What lies behind is left unread.
constexpr std::int64_t kMostBytes = 4 << 20;

std::optional<std::string> ContentOf(PathFinder& finder, const Text& path) {
  const auto file = OpenFile(finder, path, OpenMode::kRead);
  const auto length = file ? file->Length() : std::nullopt;
  if (!length) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(std::min(*length, kMostBytes)), '\0');
  const auto count = file->ReadAt(0, bytes);
  if (!count) return std::nullopt;
  bytes.resize(*count);
  return bytes;
}

}  // namespace

std::optional<Shortcut> PosixShell::ReadShortcut(const Text& path) {
  const auto bytes = ContentOf(files_.finder(), path);
  const auto link = bytes ? ReadShellLink(*bytes, system_.AnsiPage()) : std::nullopt;
  if (!link) return std::nullopt;
  // One that leads nowhere without a variable that isn't known here counts for nothing.
  const Text expanded = ExpandVariables(link->variable_path, system_);
  return ShortcutOf(*link, IsFullPath(expanded) ? expanded : Text());
}

TargetFacts PosixShell::FactsOf(const Text& target) {
  const std::optional<Entry> entry = files_.finder().Look(target);
  return {entry && entry->IsFolder(), files_.DriveType(target.substr(0, 3))};
}

bool PosixShell::WriteShortcut(const Text& path, const Shortcut& shortcut) {
  if (!IsFitToWrite(shortcut)) return false;
  const Text wanted = ExpandVariables(PlainTarget(shortcut.target), system_);
  const Text target = FullPath(wanted.substr(0, wanted.find(u'\0')), files_.CurrentFolder());
  if (target.size() > kLongestPath) return false;
  const ShellLink link = LinkOf(shortcut, target, FactsOf(target));
  const auto bytes = WriteShellLink(link, system_.AnsiPage());
  return bytes && ReplaceContent(files_.finder(), path, *bytes);
}

}  // namespace orvik::host::posix
