#include "host/shell_link/shortcut_link.h"

#include <algorithm>

#include "host/file_system.h"
#include "host/shortcut_fields.h"

namespace orvik::host {
namespace {

Text Handed(const Text& text) { return text.substr(0, kLongestShortcutText); }

Text UpToZero(const Text& text) { return text.substr(0, text.find(u'\0')); }

void SetTarget(const Text& target, const TargetFacts& facts, ShellLink& link) {
  if (target.empty()) return;
  link.local_path = target;
  link.folder = facts.folder;
  if (target.starts_with(u"\\\\")) {
    link.network_path = target;
    link.variable_path = target;
    link.drive_type = drive_type::kRemote;
  } else {
    link.item_path = target;
    link.drive_type = static_cast<std::uint32_t>(facts.drive_type);
  }
}

}  // namespace

ShellLink LinkOf(const Shortcut& shortcut, const Text& target, const TargetFacts& facts) {
  IconLocation icon = ParseIconLocation(UpToZero(shortcut.icon_location));
  ShellLink link;
  SetTarget(target, facts, link);
  link.arguments = UpToZero(shortcut.arguments);
  link.description = UpToZero(shortcut.description);
  link.working_folder = UpToZero(shortcut.working_folder);
  link.icon_path = std::move(icon.path);
  link.icon_index = icon.index;
  link.window_style = shortcut.window_style;
  return link;
}

Shortcut ShortcutOf(const ShellLink& link, const Text& expanded_path) {
  Shortcut shortcut;
  for (const Text* path : {&expanded_path, &link.item_path, &link.local_path, &link.network_path}) {
    if (shortcut.target.empty()) shortcut.target = PlainTarget(*path);
  }
  shortcut.arguments = Handed(link.arguments);
  shortcut.description = Handed(link.description);
  shortcut.working_folder = Handed(link.working_folder);
  shortcut.icon_location = IconLocationText(Handed(link.icon_path), link.icon_index);
  shortcut.window_style = link.window_style;
  return shortcut;
}

}  // namespace orvik::host
