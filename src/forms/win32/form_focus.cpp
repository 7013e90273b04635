// Where the keyboard is on a form.
#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

bool FormWindow::InSight(const ControlView& view) const {
  // A form may keep controls below its lower edge until it is made higher.
  RECT area;
  RECT client;
  RECT common;
  GetWindowRect(view.window(), &area);
  GetClientRect(window_, &client);
  MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&client), 2);
  return IntersectRect(&common, &area, &client) != 0;
}

bool FormWindow::FocusIfPossible(const Control& control) const {
  if (control.view() == nullptr || !control.Reachable()) return false;
  const auto& adapter = static_cast<const Adapter&>(*control.view());
  if (!adapter.TakesFocus()) return false;
  const auto& view = static_cast<const ControlView&>(adapter);
  if (!InSight(view)) return false;
  SetFocus(view.window());
  return true;
}

Control* FormWindow::Focused() const {
  const HWND focus = GetFocus();
  if (focus == nullptr || GetAncestor(focus, GA_ROOT) != window_) return nullptr;
  const ControlView* view = ControlView::Of(focus);
  return view != nullptr ? &view->control() : nullptr;
}

void FormWindow::OnFocus() {
  if (last_focus_ != nullptr && FocusIfPossible(*last_focus_)) return;
  // A strip that has just appeared must not lie with its exit under the user's next Enter.
  if (!form_.skinned()) MoveFocus(1);
}

void FormWindow::MoveFocus(int step) {
  const auto& controls = form_.controls();
  const int count = static_cast<int>(controls.size());
  Control* focused = Focused();
  int at = step > 0 ? -1 : count;
  for (int i = 0; i < count && focused != nullptr; ++i) {
    if (controls[static_cast<std::size_t>(i)] == focused) at = i;
  }
  for (int tried = 0; tried < count; ++tried) {
    at = (at + step + count) % count;
    if (FocusIfPossible(*controls[static_cast<std::size_t>(at)])) return;
  }
  // The form itself, so that its keys still arrive.
  if (focused != nullptr) SetFocus(window_);
}

void FormWindow::CheckFocus() {
  if (GetActiveWindow() != window_) return;
  const Control* focused = Focused();
  // The system takes the keyboard from a window that it disables, and gives it to none.
  if (focused != nullptr ? !focused->Reachable() : GetFocus() == nullptr) MoveFocus(1);
  if (GetFocus() == nullptr) SetFocus(window_);
}

Control* FormWindow::DefaultButton() const {
  for (Control* control : form_.controls()) {
    if (control->kind() == Kind::kButton && static_cast<Button*>(control)->is_default()) {
      return control;
    }
  }
  return nullptr;
}

}  // namespace orvik::forms::win32
