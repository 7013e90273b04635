// The transcript as the robot writes it.
#pragma once

#include <string>
#include <vector>

#include "forms/headless/transcript.h"

namespace orvik::robot {

// Whoever looks on from outside can't tell a form that goes by itself from one that goes because
// its process ends. So a form's going is written when something else follows, and not at all when
// nothing does but the end of the process.
class Record {
 public:
  explicit Record(forms::headless::Transcript& transcript) : transcript_(transcript) {}

  // Begins a line; the caller adds the other members and ends it by End.
  forms::headless::JsonWriter& Begin(std::string_view event);
  void End() { transcript_.End(); }

  void FormGone(std::string form) { gone_.push_back(std::move(form)); }
  void Error(int line, std::string_view text);
  // The last line. The process has ended by itself, or it lives and the script is over.
  enum class Reason { kEnded, kScript };
  void Finish(Reason reason);

 private:
  void WriteGone();

  forms::headless::Transcript& transcript_;
  std::vector<std::string> gone_;
};

}  // namespace orvik::robot
