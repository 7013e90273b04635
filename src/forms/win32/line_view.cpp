#include "forms/win32/line_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// What the system's etched line takes.
constexpr int kThickness = 2;

bool IsUpright(const Bounds& bounds) { return bounds.height > bounds.width; }

}  // namespace

LineView::LineView(Line& line, FormWindow& form) : ControlView(line, form) {
  Create(L"STATIC", {}, IsUpright(line.bounds()) ? SS_ETCHEDVERT : SS_ETCHEDHORZ);
}

RECT LineView::Area() const {
  RECT area = ControlView::Area();
  if (IsUpright(control().bounds())) {
    area.right = area.left + kThickness;
  } else {
    area.bottom = area.top + kThickness;
  }
  return area;
}

}  // namespace orvik::forms::win32
