#include "forms/win32/line_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// What the system's etched line takes.
constexpr int kThickness = 2;

bool IsUpright(const Bounds& bounds) { return bounds.height > bounds.width; }

}  // namespace

LineView::LineView(Line& line, FormWindow& form) : ControlView(line, form), line_(line) {
  Create(L"STATIC", {}, IsUpright(line.bounds()) ? SS_ETCHEDVERT : SS_ETCHEDHORZ);
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

void LineView::Paint() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window(), &paint);
  SetDCBrushColor(context, line_.color().value_or(0));
  FillRect(context, &paint.rcPaint, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  EndPaint(window(), &paint);
}

LRESULT LineView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != WM_PAINT || !line_.color()) {
    return ControlView::OnMessage(message, wparam, lparam);
  }
  Paint();
  return 0;
}

}  // namespace orvik::forms::win32
