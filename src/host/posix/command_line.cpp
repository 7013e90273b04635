#include "host/posix/command_line.h"

namespace orvik::host::posix {
namespace {

bool IsBlank(char16_t c) { return c == u' ' || c == u'\t'; }

TextView WithoutBlanksInFront(TextView text) {
  const std::size_t first = text.find_first_not_of(u" \t");
  return first == TextView::npos ? TextView() : text.substr(first);
}

}  // namespace

std::vector<Text> WordsOf(TextView command_line) {
  std::vector<Text> words;
  bool quoted = false;
  bool in_word = false;
  for (std::size_t i = 0; i < command_line.size(); ++i) {
    const char16_t c = command_line[i];
    if (!quoted && IsBlank(c)) {
      in_word = false;
      continue;
    }
    if (!in_word) words.emplace_back();
    in_word = true;
    // Before the closing quote of a folder ("C:\a\") the backslash belongs to the path.
    const bool quote_next =
        c == u'\\' && i + 1 < command_line.size() && command_line[i + 1] == u'"';
    if (quote_next && i + 2 < command_line.size() && !IsBlank(command_line[i + 2])) {
      words.back() += u'"';
      ++i;
    } else if (c == u'"') {
      quoted = !quoted;
    } else {
      words.back() += c;
    }
  }
  return words;
}

std::vector<ProgramReading> ProgramReadings(TextView command_line) {
  std::vector<ProgramReading> readings;
  const TextView line = WithoutBlanksInFront(command_line);
  if (line.empty()) return readings;
  if (line.front() == u'"') {
    const std::size_t end = line.find(u'"', 1);
    const TextView rest = end == TextView::npos ? TextView() : line.substr(end + 1);
    readings.push_back({Text(line.substr(1, end == TextView::npos ? end : end - 1)), Text(rest)});
    return readings;
  }
  for (std::size_t end = 0; end != TextView::npos;) {
    end = line.find_first_of(u" \t", end);
    const TextView rest = end == TextView::npos ? TextView() : line.substr(end);
    readings.push_back({Text(line.substr(0, end)), Text(rest)});
    if (end != TextView::npos) end = line.find_first_not_of(u" \t", end);
  }
  return readings;
}

}  // namespace orvik::host::posix
