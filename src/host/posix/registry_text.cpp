#include "host/posix/registry_text.h"

#include <optional>
#include <utility>

namespace orvik::host::posix {
namespace {

constexpr TextView kHead = u"Windows Registry Editor Version 5.00";

// The lines of a text one by one, without their ends.
class Lines {
 public:
  explicit Lines(TextView text) : rest_(text) {}

  std::optional<TextView> Peek() const {
    if (rest_.empty()) return std::nullopt;
    TextView line = rest_.substr(0, rest_.find(u'\n'));
    if (line.ends_with(u'\r')) line.remove_suffix(1);
    return line;
  }

  std::optional<TextView> Next() {
    const std::optional<TextView> line = Peek();
    const std::size_t end = rest_.find(u'\n');
    rest_.remove_prefix(end == TextView::npos ? rest_.size() : end + 1);
    return line;
  }

 private:
  TextView rest_;
};

bool IsBlank(TextView line) { return line.find_first_not_of(u" \t\r") == TextView::npos; }

TextView WithoutBlanksBehind(TextView text) {
  return text.substr(0, text.find_last_not_of(u" \t") + 1);
}

// Bytes may go on in the next line, behind a backslash.
bool GoesOn(TextView line) { return WithoutBlanksBehind(line).ends_with(u'\\'); }

bool IsHex(char16_t c) {
  return (c >= u'0' && c <= u'9') || (ToLower(c) >= u'a' && ToLower(c) <= u'f');
}

// Pairs of digits with commas, as loosely as people write them.
bool AreHexDigits(TextView text) {
  for (const char16_t c : text) {
    if (!IsHex(c) && TextView(u", \t\\\r\n").find(c) == TextView::npos) return false;
  }
  return true;
}

// Bytes behind "hex:", or "hex(2):" where their type is told.
bool IsHexData(TextView data) {
  if (!EqualNoCase(data.substr(0, 3), u"hex")) return false;
  const std::size_t colon = data.find(u':');
  if (colon == TextView::npos) return false;
  const TextView type = data.substr(3, colon - 3);
  const bool typed = type.size() > 2 && type.front() == u'(' && type.back() == u')';
  return (type.empty() || typed) && AreHexDigits(data.substr(colon + 1));
}

bool IsNumberData(TextView data) {
  constexpr TextView kPrefix = u"dword:";
  if (!EqualNoCase(data.substr(0, kPrefix.size()), kPrefix)) return false;
  const TextView digits = data.substr(kPrefix.size());
  if (digits.empty() || digits.size() > 8) return false;
  for (const char16_t c : digits) {
    if (!IsHex(c)) return false;
  }
  return true;
}

// Data in the form in which it is written; nothing for what isn't data.
std::optional<Text> Canonical(TextView data) {
  TextView rest = data;
  if (const std::optional<Text> text = TakeQuoted(rest); text && rest.empty()) return Quoted(*text);
  if (IsNumberData(data)) return Text(data);
  // Bytes that break off can't be told from bytes that go on.
  if (IsHexData(data) && !data.ends_with(u'\n') && !GoesOn(data)) return Text(data);
  return std::nullopt;
}

// One line, or several that a backslash joins, as a value.
std::optional<RegistryLine> ParseValue(TextView line) {
  RegistryLine value;
  value.is_value = true;
  if (line.starts_with(u'@')) {
    line.remove_prefix(1);
  } else if (std::optional<Text> name = TakeQuoted(line)) {
    value.name = std::move(*name);
  } else {
    return std::nullopt;
  }
  if (!line.starts_with(u'=')) return std::nullopt;
  std::optional<Text> data = Canonical(WithoutBlanksBehind(line.substr(1)));
  if (!data) return std::nullopt;
  value.data = std::move(*data);
  return value;
}

// The path in the head of a key; nothing for another kind of line in brackets, or a broken one.
std::optional<TextView> PathInHead(TextView line) {
  line = WithoutBlanksBehind(line);
  if (line.size() < 3 || line.back() != u']' || line[1] == u'-') return std::nullopt;
  return line.substr(1, line.size() - 2);
}

bool BeginsBytes(TextView line) {
  const std::size_t begin = line.rfind(u'=');
  return begin != TextView::npos && GoesOn(line) && IsHexData(line.substr(begin + 1));
}

bool IsPartOfBytes(TextView line) { return !IsBlank(line) && AreHexDigits(line); }

class Parser {
 public:
  RegistryDocument Parse(TextView text) {
    Lines lines(text);
    bool first = true;
    for (std::optional<TextView> line = lines.Next(); line; line = lines.Next()) {
      if (IsBlank(*line)) continue;
      if (std::exchange(first, false) && WithoutBlanksBehind(*line) == kHead) continue;
      if (line->starts_with(u'[')) {
        TakeHead(*line);
      } else if (BeginsBytes(*line)) {
        TakeLine(Joined(*line, lines));
      } else {
        TakeLine(*line);
      }
    }
    return std::move(document_);
  }

 private:
  // A line of bytes with those that it goes on in. One that breaks off gets an empty line behind
  // it, which keeps it from joining whatever comes to stand there.
  static Text Joined(TextView first, Lines& lines) {
    Text joined(first);
    bool goes_on = true;
    while (goes_on) {
      const std::optional<TextView> next = lines.Peek();
      joined += kCrLf;
      if (!next || !IsPartOfBytes(*next)) break;
      joined += *next;
      goes_on = GoesOn(*next);
      lines.Next();
    }
    return joined;
  }

  void TakeHead(TextView line) {
    const std::optional<TextView> path = PathInHead(line);
    section_ = path ? document_.SectionOf(*path) : document_.AddUnreadable(line);
  }

  void TakeLine(TextView line) {
    if (!section_) {
      document_.preamble.emplace_back(line);
      return;
    }
    RegistrySection& section = document_.At(*section_);
    std::optional<RegistryLine> value;
    if (section.readable) value = ParseValue(line);
    if (value) {
      PutValue(section, value->name, std::move(value->data));
    } else {
      section.lines.push_back({false, Text(), Text(line)});
    }
  }

  RegistryDocument document_;
  std::optional<std::size_t> section_;
};

void WriteLine(Text& text, TextView line) {
  text += line;
  text += kCrLf;
}

}  // namespace

std::optional<Text> TakeQuoted(TextView& line) {
  if (!line.starts_with(u'"')) return std::nullopt;
  Text text;
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (line[i] == u'"') {
      line.remove_prefix(i + 1);
      return text;
    }
    const char16_t next = line[i] == u'\\' && i + 1 < line.size() ? line[i + 1] : u'\0';
    if (next == u'\\' || next == u'"' || next == u'n' || next == u'r') {
      text += next == u'n' ? u'\n' : next == u'r' ? u'\r' : next;
      ++i;
    } else {
      text += line[i];
    }
  }
  return std::nullopt;
}

Text Quoted(TextView text) {
  Text quoted = u"\"";
  for (const char16_t c : text) {
    if (c == u'\n' || c == u'\r') {
      quoted += c == u'\n' ? u"\\n" : u"\\r";
      continue;
    }
    if (c == u'\\' || c == u'"') quoted += u'\\';
    quoted += c;
  }
  return quoted + u'"';
}

RegistryDocument ParseRegistry(TextView text) { return Parser().Parse(text); }

Text WriteRegistry(const RegistryDocument& document) {
  Text text;
  WriteLine(text, kHead);
  for (const Text& line : document.preamble) WriteLine(text, line);
  for (const RegistrySection& section : document.sections()) {
    WriteLine(text, {});
    WriteLine(text, section.readable ? u"[" + section.path + u"]" : section.path);
    for (const RegistryLine& line : section.lines) {
      if (line.is_value) text += line.name.empty() ? Text(u"@=") : Quoted(line.name) + u"=";
      WriteLine(text, line.data);
    }
  }
  return text;
}

}  // namespace orvik::host::posix
