#include "fileengine/pattern.h"

#include <algorithm>
#include <vector>

#include "base/failure.h"

namespace orvik::mdlSupport {

namespace {

struct Range {
  char16_t first, last;
};

// One element of a pattern.
struct Element {
  enum class Kind { kOne, kRun, kIn, kNotIn } kind;
  std::vector<Range> ranges;

  bool Takes(char16_t c) const {
    if (kind == Kind::kOne) return true;
    const bool in = std::any_of(ranges.begin(), ranges.end(), [c](const Range& range) {
      return c >= range.first && c <= range.last;
    });
    return in == (kind == Kind::kIn);
  }
};

// The ranges of a list, without its brackets and "!". A hyphen at either end stands for itself.
std::vector<Range> ParseList(TextView list) {
  std::vector<Range> ranges;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i + 2 < list.size() && list[i + 1] == u'-') {
      if (list[i] > list[i + 2]) throw Failure{};
      ranges.push_back({list[i], list[i + 2]});
      i += 2;
    } else {
      ranges.push_back({list[i], list[i]});
    }
  }
  return ranges;
}

std::vector<Element> Parse(TextView pattern) {
  std::vector<Element> elements;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char16_t c = pattern[i];
    if (c == u'?') {
      elements.push_back({Element::Kind::kOne, {}});
    } else if (c == u'*') {
      elements.push_back({Element::Kind::kRun, {}});
    } else if (c == u'#') {
      elements.push_back({Element::Kind::kIn, {{u'0', u'9'}}});
    } else if (c == u'[') {
      const std::size_t end = pattern.find(u']', i);
      if (end == TextView::npos) throw Failure{};
      TextView list = pattern.substr(i + 1, end - i - 1);
      const bool negated = list.starts_with(u'!');
      if (negated) list.remove_prefix(1);
      // An empty list consumes nothing.
      if (negated || !list.empty()) {
        elements.push_back({negated ? Element::Kind::kNotIn : Element::Kind::kIn, ParseList(list)});
      }
      i = end;
    } else {
      elements.push_back({Element::Kind::kIn, {{c, c}}});
    }
  }
  return elements;
}

}  // namespace

bool Like(TextView text, TextView pattern) {
  const std::vector<Element> elements = Parse(pattern);
  std::size_t at = 0;
  std::size_t element = 0;
  // Where to go on when a match fails: the latest run takes one character more.
  std::size_t run = elements.size();
  std::size_t run_end = 0;
  while (at < text.size()) {
    if (element < elements.size() && elements[element].kind == Element::Kind::kRun) {
      run = element++;
      run_end = at;
    } else if (element < elements.size() && elements[element].Takes(text[at])) {
      ++element;
      ++at;
    } else if (run < elements.size()) {
      element = run + 1;
      at = ++run_end;
    } else {
      return false;
    }
  }
  while (element < elements.size() && elements[element].kind == Element::Kind::kRun) ++element;
  return element == elements.size();
}

}  // namespace orvik::mdlSupport
