#include "forms/win32/timer_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

TimerView::TimerView(Timer& timer, FormWindow& form) : Adapter(timer, form), timer_(timer) {
  if (timer.active()) Refresh(Bit(Property::kActive));
}

void TimerView::Refresh(Changes changes) {
  if ((changes & (Bit(Property::kActive) | Bit(Property::kInterval))) == 0) return;
  const auto id = reinterpret_cast<UINT_PTR>(form().IdOf(timer_));
  KillTimer(form().window(), id);
  if (timer_.active() && timer_.interval() > 0) {
    SetTimer(form().window(), id, static_cast<UINT>(timer_.interval()), nullptr);
  }
}

}  // namespace orvik::forms::win32
