#include "forms/headless/transcript.h"

namespace orvik::forms::headless {

namespace {
constexpr std::size_t kHeldBack = 1 << 16;
}

JsonWriter& Transcript::Begin(std::string_view event) {
  json_ = JsonWriter(buffer_);
  return json_.BeginObject().Name("event").String(event);
}

void Transcript::End() {
  EndHeldBack();
  Flush();
}

void Transcript::EndHeldBack() {
  json_.EndObject();
  buffer_ += '\n';
  if (buffer_.size() >= kHeldBack) Flush();
}

void Transcript::Flush() {
  if (buffer_.empty()) return;
  output_(buffer_);
  buffer_.clear();
}

}  // namespace orvik::forms::headless
