#include "monitors/skin.h"

#include "base/checked.h"
#include "forms/front_end.h"

namespace orvik {

namespace FormMouseMove {

void DragForm(forms::Form& form) { forms::Front().Drag(form); }

}  // namespace FormMouseMove

namespace mdlWindowsTransparent {

void SetWindowTransparency(forms::Form& form, int level) { form.SetTransparency(level); }

}  // namespace mdlWindowsTransparent

namespace WindowForm {

void SetRoundWindow(forms::Form& form, int left, int top, int right, int bottom, int corner_width,
                    int corner_height) {
  const auto whole = [](double twips_per_pixel) {
    const std::int32_t rounded = RoundToInt32(twips_per_pixel);
    return rounded == 0 ? 1.0 : static_cast<double>(rounded);
  };
  const forms::TwipsPerPixel scale = forms::Front().Scale();
  const double horizontal = whole(scale.horizontal);
  const double vertical = whole(scale.vertical);
  if (right == 0) right = form.width();
  if (bottom == 0) bottom = form.height();
  form.SetRegion({RoundToInt32(left / horizontal), RoundToInt32(top / vertical),
                  RoundToInt32(right / horizontal), RoundToInt32(bottom / vertical), corner_width,
                  corner_height});
}

}  // namespace WindowForm

}  // namespace orvik
