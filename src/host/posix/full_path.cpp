#include "host/posix/full_path.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace orvik::host::posix {
namespace {

bool HasDrive(TextView path) {
  if (path.size() < 2 || path[1] != u':') return false;
  const char16_t letter = ToUpper(path[0]);
  return letter >= u'A' && letter <= u'Z';
}

bool HasShare(TextView path) { return path.starts_with(u"\\\\"); }

// The length of "C:" or "\\server\share" in front.
std::size_t RootLength(TextView path) {
  if (!HasShare(path)) return 2;
  const std::size_t server_end = std::min(path.find(u'\\', 2), path.size());
  return std::min(path.find(u'\\', server_end + 1), path.size());
}

// The path behind what makes it a full one, by text alone.
Text Based(Text path, TextView current_folder) {
  if (HasShare(path)) return path;
  if (path.front() == u'\\') return Text(current_folder.substr(0, 2)) + path;
  if (!HasDrive(path)) return Text(current_folder) + u'\\' + path;
  if (path.size() > 2 && path[2] == u'\\') return path;
  // Of the other drives no current folder is known.
  const bool current = EqualNoCase(TextView(path).substr(0, 2), current_folder.substr(0, 2));
  return (current ? Text(current_folder) : path.substr(0, 2)) + u'\\' + path.substr(2);
}

// Windows drops one dot at the end of a component, and all dots and blanks at the end of a path.
TextView WithoutEnd(TextView component, bool last) {
  if (last) return component.substr(0, component.find_last_not_of(u". ") + 1);
  if (component.ends_with(u'.')) component.remove_suffix(1);
  return component;
}

std::optional<TextView> Variable(TextView name, TextView entry) {
  if (entry.size() <= name.size() || entry[name.size()] != u'=') return std::nullopt;
  if (name.empty() || !EqualNoCase(entry.substr(0, name.size()), name)) return std::nullopt;
  return entry.substr(name.size() + 1);
}

std::optional<Text> ValueOf(TextView name, System& system) {
  for (int index = 1;; ++index) {
    const std::optional<Text> entry = system.EnvironmentEntry(index);
    if (!entry) return std::nullopt;
    if (const auto value = Variable(name, *entry)) return Text(*value);
  }
}

}  // namespace

Text FullPath(TextView path, TextView current_folder) {
  if (path.empty()) return {};
  Text text(path);
  std::replace(text.begin(), text.end(), u'/', u'\\');
  text = Based(std::move(text), current_folder);
  const std::size_t root = RootLength(text);
  std::vector<TextView> kept;
  const std::vector<TextView> components = Split(TextView(text).substr(root), u"\\");
  for (const TextView& component : components) {
    if (component == u"..") {
      if (!kept.empty()) kept.pop_back();
    } else if (component != u".") {
      const TextView name = WithoutEnd(component, &component == &components.back());
      if (!name.empty()) kept.push_back(name);
    }
  }
  Text full = text.substr(0, root);
  for (const TextView component : kept) full += u'\\' + Text(component);
  return HasDrive(full) && full.size() == 2 ? full + u'\\' : full;
}

bool IsFullPath(TextView path) {
  return HasShare(path) || (HasDrive(path) && path.size() > 2 && path[2] == u'\\');
}

Text ExpandVariables(TextView text, System& system) {
  Text expanded;
  for (;;) {
    const std::size_t begin = text.find(u'%');
    const std::size_t end = begin == TextView::npos ? begin : text.find(u'%', begin + 1);
    if (end == TextView::npos) return expanded.append(text);
    const auto value = ValueOf(text.substr(begin + 1, end - begin - 1), system);
    expanded.append(text.substr(0, value ? begin : end));
    if (value) expanded += *value;
    // A sign that closes no known variable may open the next one.
    text.remove_prefix(value ? end + 1 : end);
  }
}

}  // namespace orvik::host::posix
