#include "forms/win32/status_bar_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

StatusBarView::StatusBarView(StatusBar& bar, FormWindow& form) : ControlView(bar, form), bar_(bar) {
  // Its place is reckoned here; the system's bar would take another height.
  Create(STATUSCLASSNAMEW, {},
         CCS_NORESIZE | CCS_NOPARENTALIGN | (form.form().sizable() ? SBARS_SIZEGRIP : 0));
  ShowText();
}

RECT StatusBarView::Area() const {
  const RECT bounds = ControlView::Area();
  RECT area;
  GetClientRect(form().window(), &area);
  area.top = area.bottom - (bounds.bottom - bounds.top);
  return area;
}

void StatusBarView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kText)) != 0) ShowText();
}

void StatusBarView::ShowText() { SetWindowTextW(window(), Wide(bar_.text())); }

}  // namespace orvik::forms::win32
