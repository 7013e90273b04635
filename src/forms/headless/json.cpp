#include "forms/headless/json.h"

namespace orvik::forms::headless {

namespace {

bool IsLoneSurrogate(TextView text, std::size_t at) {
  const char16_t c = text[at];
  if (c < 0xD800 || c > 0xDFFF) return false;
  if (c < 0xDC00) return at + 1 == text.size() || (text[at + 1] & 0xFC00) != 0xDC00;
  return at == 0 || (text[at - 1] & 0xFC00) != 0xD800;
}

bool NeedsEscape(char16_t c) { return c < 0x20 || c == u'"' || c == u'\\'; }

}  // namespace

void JsonWriter::Separate() {
  if (!first_) *out_ += ',';
  first_ = false;
}

JsonWriter& JsonWriter::Open(char bracket) {
  Separate();
  *out_ += bracket;
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
  *out_ += bracket;
  first_ = false;
  return *this;
}

JsonWriter& JsonWriter::Name(std::string_view name) {
  String(name);
  *out_ += ':';
  first_ = true;
  return *this;
}

void JsonWriter::Escape(char16_t c) {
  constexpr char kDigits[] = "0123456789abcdef";
  switch (c) {
    case u'"':
      *out_ += "\\\"";
      return;
    case u'\\':
      *out_ += "\\\\";
      return;
    case u'\n':
      *out_ += "\\n";
      return;
    case u'\r':
      *out_ += "\\r";
      return;
    case u'\t':
      *out_ += "\\t";
      return;
    default:
      *out_ += "\\u";
      for (int shift = 12; shift >= 0; shift -= 4) *out_ += kDigits[(c >> shift) & 15];
  }
}

JsonWriter& JsonWriter::String(TextView text) {
  Separate();
  *out_ += '"';
  std::size_t plain = 0;  // where the run begins that needs no escape
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && !NeedsEscape(text[i]) && !IsLoneSurrogate(text, i)) continue;
    *out_ += ToUtf8(text.substr(plain, i - plain));
    if (i < text.size()) Escape(text[i]);
    plain = i + 1;
  }
  *out_ += '"';
  return *this;
}

JsonWriter& JsonWriter::String(std::string_view utf8) {
  Separate();
  *out_ += '"';
  for (char c : utf8) {
    const auto unit = static_cast<char16_t>(static_cast<unsigned char>(c));
    if (NeedsEscape(unit)) {
      Escape(unit);
    } else {
      *out_ += c;
    }
  }
  *out_ += '"';
  return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t number) {
  Separate();
  *out_ += std::to_string(number);
  return *this;
}

JsonWriter& JsonWriter::Bool(bool value) {
  Separate();
  *out_ += value ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::Null() {
  Separate();
  *out_ += "null";
  return *this;
}

}  // namespace orvik::forms::headless
