#include "host/posix/short_name.h"

#include <algorithm>

#include "base/numbers.h"

namespace orvik::host::posix {
namespace {

constexpr std::size_t kLongestBase = 8;
constexpr std::size_t kLongestExtension = 3;
constexpr std::size_t kLongestNumberedBase = 6;
constexpr TextView kNotInDos = u" +,;=[]";

struct Parts {
  Text base;
  Text extension;  // with its dot, or empty
};

// What remains of a name when everything that DOS doesn't take is dropped or replaced.
Parts Shortened(TextView name) {
  const std::size_t dot = name.rfind(u'.');
  const bool split = dot != TextView::npos && dot != 0 && dot + 1 < name.size();
  Parts parts;
  const auto add = [](TextView from, std::size_t limit, Text& to) {
    for (const char16_t c : from) {
      if (to.size() == limit) break;
      if (c == u' ' || c == u'.') continue;
      to += kNotInDos.find(c) != TextView::npos ? u'_' : ToUpper(c);
    }
  };
  add(name.substr(0, split ? dot : name.size()), kLongestNumberedBase, parts.base);
  if (!split) return parts;
  Text extension;
  add(name.substr(dot + 1), kLongestExtension, extension);
  if (!extension.empty()) parts.extension = u"." + extension;
  return parts;
}

Text Numbered(const Parts& parts, std::int64_t number) {
  const Text tail = u"~" + Decimal(number);
  return parts.base.substr(0, std::min(parts.base.size(), kLongestBase - tail.size())) + tail +
         parts.extension;
}

}  // namespace

bool FitsShortName(TextView name) {
  const std::size_t dot = name.find(u'.');
  const TextView base = name.substr(0, dot);
  const TextView extension = dot == TextView::npos ? TextView() : name.substr(dot + 1);
  if (dot != TextView::npos && extension.empty()) return false;
  return !base.empty() && base.size() <= kLongestBase && extension.size() <= kLongestExtension &&
         extension.find(u'.') == TextView::npos && name.find_first_of(kNotInDos) == TextView::npos;
}

Text ShortNameAmong(TextView name, const std::vector<Text>& folder) {
  if (FitsShortName(name)) return ToUpper(name);
  const Parts parts = Shortened(name);
  const auto is_real = [&](const Text& candidate) {
    return std::any_of(folder.begin(), folder.end(),
                       [&](const Text& other) { return EqualNoCase(other, candidate); });
  };
  std::int64_t number = 0;
  for (const Text& other : folder) {
    if (FitsShortName(other)) continue;
    const Parts others = Shortened(other);
    if (others.base != parts.base || others.extension != parts.extension) continue;
    do ++number;
    while (is_real(Numbered(parts, number)));
    if (other == name) break;
  }
  return Numbered(parts, std::max<std::int64_t>(number, 1));
}

}  // namespace orvik::host::posix
