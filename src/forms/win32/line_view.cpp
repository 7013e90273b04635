#include "forms/win32/line_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// What the system's etched line takes.
constexpr int kThickness = 2;

bool IsUpright(const Bounds& bounds) { return bounds.height > bounds.width; }

}  // namespace

LineView::LineView(Line& line, FormWindow& form) : ControlView(line, form), line_(line) {
  const DWORD etched = IsUpright(line.bounds()) ? SS_ETCHEDVERT : SS_ETCHEDHORZ;
  Create(L"STATIC", {}, line.color() ? SS_OWNERDRAW : etched);
}

RECT LineView::Area() const {
  RECT area = ControlView::Area();
  const int thickness = line_.color() ? form().metrics().Scaled(1) : kThickness;
  if (IsUpright(control().bounds())) {
    area.right = area.left + thickness;
  } else {
    area.bottom = area.top + thickness;
  }
  return area;
}

void LineView::OnDraw(const DRAWITEMSTRUCT& draw) {
  SetDCBrushColor(draw.hDC, line_.color().value_or(0));
  FillRect(draw.hDC, &draw.rcItem, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace orvik::forms::win32
