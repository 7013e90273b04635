// What forms have drawn on their own surfaces.
#pragma once

#include <vector>

#include "forms/form.h"

namespace orvik::forms::headless {

// The lines since the form's load in the order of drawing, for its dump. Kept with the form.
class Surface : public View {
 public:
  // The surface of a form that has drawn, or nullptr.
  static const Surface* Of(const Form& form) { return static_cast<const Surface*>(form.view()); }
  static void Draw(Form& form, const DrawnLine& line) {
    if (form.view() == nullptr) form.SetView(std::make_unique<Surface>());
    static_cast<Surface*>(form.view())->lines_.push_back(line);
  }

  const std::vector<DrawnLine>& lines() const { return lines_; }

 private:
  std::vector<DrawnLine> lines_;
};

}  // namespace orvik::forms::headless
