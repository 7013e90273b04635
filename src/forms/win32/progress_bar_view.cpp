#include "forms/win32/progress_bar_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

ProgressBarView::ProgressBarView(ProgressBar& bar, FormWindow& form)
    : ControlView(bar, form), bar_(bar) {
  Create(PROGRESS_CLASSW, {}, 0);
  ShowValue();
}

void ProgressBarView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & (Bit(Property::kMax) | Bit(Property::kValue))) != 0) ShowValue();
}

void ProgressBarView::ShowValue() {
  const int max = bar_.max();
  const int value = bar_.value();
  Send(PBM_SETRANGE32, 0, max);
  // The bar runs up to a value slowly and jumps down to one at once, so it comes from above.
  if (value < max) {
    Send(PBM_SETPOS, static_cast<WPARAM>(value) + 1);
    Send(PBM_SETPOS, static_cast<WPARAM>(value));
  } else {
    Send(PBM_SETRANGE32, 0, max > 1 ? max - 1 : max);
    Send(PBM_SETPOS, static_cast<WPARAM>(max));
    Send(PBM_SETRANGE32, 0, max);
    Send(PBM_SETPOS, static_cast<WPARAM>(max));
  }
  form().taskbar_button().SetProgress(value, max);
}

}  // namespace orvik::forms::win32
