#include "platform/text_edits.h"

namespace orvik::mdlSupport {

namespace {
constexpr char16_t kQuote = u'"';
}

Text QuotePath(TextView text) {
  Text quoted(text);
  if (!quoted.starts_with(kQuote)) quoted.insert(quoted.begin(), kQuote);
  if (!quoted.ends_with(kQuote)) quoted.push_back(kQuote);
  return quoted;
}

Text StripQuotes(TextView text) {
  if (text.starts_with(kQuote)) text.remove_prefix(1);
  if (text.ends_with(kQuote)) text.remove_suffix(1);
  return Text(text);
}

std::size_t FindNoCase(TextView text, TextView piece, std::size_t from) {
  return ToLower(text).find(ToLower(piece), from);
}

Text ReplaceText(TextView text, TextView what, TextView by) {
  Text result(text);
  for (std::size_t at; (at = result.find(what)) != Text::npos;) {
    result.replace(at, what.size(), by);
  }
  return result;
}

void CutBehindLast(Text& text, TextView piece) {
  std::size_t end = text.size();
  for (std::size_t at = 0; (at = FindNoCase(text, piece, at)) != Text::npos;) {
    end = at += piece.size();
  }
  text.resize(end);
}

}  // namespace orvik::mdlSupport
