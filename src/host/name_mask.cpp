#include "host/name_mask.h"

namespace orvik::host {
namespace {

bool SameCharacter(char16_t a, char16_t b) { return a == b || ToUpper(a) == ToUpper(b); }

// Wildcards without the rules about dots. Only the last "*" is ever returned to, which keeps the
// cost at name times mask even for masks such as "*a*a*a*b".
bool FitsPlainly(TextView name, TextView mask) {
  std::size_t at = 0;
  std::size_t in_mask = 0;
  std::size_t retry_at = 0;
  std::size_t after_star = TextView::npos;
  while (at < name.size()) {
    if (in_mask < mask.size() && mask[in_mask] == u'*') {
      after_star = ++in_mask;
      retry_at = at;
    } else if (in_mask < mask.size() &&
               (mask[in_mask] == u'?' || SameCharacter(name[at], mask[in_mask]))) {
      ++at;
      ++in_mask;
    } else if (after_star != TextView::npos) {
      at = ++retry_at;
      in_mask = after_star;
    } else {
      return false;
    }
  }
  while (in_mask < mask.size() && mask[in_mask] == u'*') ++in_mask;
  return in_mask == mask.size();
}

}  // namespace

bool FitsMask(TextView name, TextView mask) {
  if (mask.empty()) return false;
  if (mask == u"*" || mask == u"*.*") return true;
  if (FitsPlainly(name, mask)) return true;
  // The dot of a closing ".*" may be missing from a name that is over there.
  if (mask.ends_with(u".*")) return FitsPlainly(name, mask.substr(0, mask.size() - 2));
  const bool dotless = name.find(u'.') == TextView::npos;
  return dotless && mask.ends_with(u'.') && FitsPlainly(name, mask.substr(0, mask.size() - 1));
}

}  // namespace orvik::host
