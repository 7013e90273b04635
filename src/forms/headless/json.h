// JSON as it is written here: UTF-8, one value after the other, no blanks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/text.h"

namespace orvik::forms::headless {

// Appends to a text. The caller opens and closes objects and arrays in pairs and gives a name
// before each value of an object; commas come by themselves.
class JsonWriter {
 public:
  explicit JsonWriter(std::string& out) : out_(&out) {}

  JsonWriter& BeginObject() { return Open('{'); }
  JsonWriter& EndObject() { return Close('}'); }
  JsonWriter& BeginArray() { return Open('['); }
  JsonWriter& EndArray() { return Close(']'); }

  JsonWriter& Name(std::string_view name);
  // A surrogate without its partner is written as an escape, so that nothing is lost.
  JsonWriter& String(TextView text);
  JsonWriter& String(std::string_view utf8);
  JsonWriter& Number(std::int64_t number);
  JsonWriter& Bool(bool value);
  JsonWriter& Null();

 private:
  JsonWriter& Open(char bracket);
  JsonWriter& Close(char bracket);
  void Separate();
  void Escape(char16_t c);

  std::string* out_;
  bool first_ = true;  // nothing stands in front of the next value
};

}  // namespace orvik::forms::headless
