#include "host/shortcut_fields.h"

#include <charconv>

#include "base/numbers.h"
#include "host/file_system.h"

namespace orvik::host {

IconLocation ParseIconLocation(TextView location) {
  const std::size_t comma = location.rfind(u',');
  if (comma == TextView::npos) return {Text(location)};
  const std::string digits = ToUtf8(Trim(location.substr(comma + 1)));
  int index = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, index);
  if (error != std::errc() || stop != end) return {Text(location)};
  return {Text(location.substr(0, comma)), index};
}

Text IconLocationText(const Text& path, int index) {
  return index == 0 ? path : path + u',' + Decimal(index);
}

Text PlainTarget(TextView target) {
  if (target.size() >= 2 && target.front() == u'"' && target.back() == u'"') {
    target = target.substr(1, target.size() - 2);
  }
  while (target.size() > 3 && target.back() == u'\\') target.remove_suffix(1);
  return Text(target);
}

bool IsFitToWrite(const Shortcut& shortcut) {
  for (const Text* text : {&shortcut.arguments, &shortcut.description, &shortcut.working_folder,
                           &shortcut.icon_location}) {
    if (text->size() > kLongestShortcutText) return false;
  }
  const Text target = PlainTarget(shortcut.target);
  return target.size() <= kLongestPath && target.find(u'"') == Text::npos;
}

}  // namespace orvik::host
