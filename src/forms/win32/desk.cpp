#include "forms/win32/desk.h"

#include <exception>
#include <utility>

#include "base/failure.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

void Desk::Deliver(const std::function<void()>& event) {
  try {
    Attempt(event);
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
    // Memory that can't be had. A window procedure must not throw, and the program goes on after
    // any statement that fails.
  }
  refresher_.Flush();
}

void Desk::Leave(FormWindow& window) { std::erase(windows_, &window); }

FormWindow* Desk::Holding(HWND window) const {
  const HWND root = GetAncestor(window, GA_ROOT);
  for (FormWindow* form : windows_) {
    if (form->window() == root) return form;
  }
  return nullptr;
}

FormWindow* Desk::Active() const {
  if (FormWindow* active = Holding(GetActiveWindow())) return active;
  for (auto form = windows_.rbegin(); form != windows_.rend(); ++form) {
    if (IsWindowVisible((*form)->window())) return *form;
  }
  return nullptr;
}

void Desk::FreeRetired() {
  for (Form* form : std::exchange(retired_, {})) {
    for (Control* control : form->controls()) control->SetView(nullptr);
    form->SetView(nullptr);
  }
}

OtherFormsDisabled::OtherFormsDisabled(const Desk& desk, HWND owner) {
  for (const FormWindow* form : desk.windows()) {
    if (form->window() == owner || !IsWindowEnabled(form->window())) continue;
    EnableWindow(form->window(), FALSE);
    disabled_.push_back(form->window());
  }
}

OtherFormsDisabled::~OtherFormsDisabled() {
  for (HWND window : disabled_) {
    if (IsWindow(window)) EnableWindow(window, TRUE);
  }
}

}  // namespace orvik::forms::win32
