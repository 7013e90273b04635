#include "robot/record.h"

namespace orvik::robot {

using forms::headless::JsonWriter;

JsonWriter& Record::Begin(std::string_view event) {
  WriteGone();
  return transcript_.Begin(event);
}

void Record::WriteGone() {
  for (const std::string& form : gone_) {
    transcript_.Begin("unload").Name("form").String(form);
    transcript_.End();
  }
  gone_.clear();
}

void Record::Error(int line, std::string_view text) {
  Begin("error").Name("line").Number(line).Name("text").String(text);
  End();
}

void Record::Finish(Reason reason) {
  if (reason == Reason::kEnded) gone_.clear();
  Begin("end").Name("reason").String(
      std::string_view(reason == Reason::kEnded ? "ended" : "script"));
  End();
}

}  // namespace orvik::robot
