// Changes of properties, as a trace writes them.
#pragma once

#include <map>

#include "forms/change.h"
#include "forms/form.h"
#include "forms/headless/transcript.h"

namespace orvik::forms::headless {

class Tracer {
 public:
  explicit Tracer(Transcript& transcript) : transcript_(transcript) {}

  // From here on the form's size is known, so that a change can tell width from height.
  void Load(const Form& form);
  void Changed(const Form& form, Change change);
  void Changed(const Control& control, Change change);

 private:
  JsonWriter& Begin(const Form& form, std::string_view control, std::string_view property);

  Transcript& transcript_;
  struct Size {
    int width, height;
  };
  std::map<const Form*, Size> sizes_;
};

}  // namespace orvik::forms::headless
