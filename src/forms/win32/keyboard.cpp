#include "forms/win32/keyboard.h"

#include "forms/win32/control_view.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// Whom a key goes to: the control that has the keyboard, as long as a user could get at it, or the
// form alone.
struct Receiver {
  FormWindow& form;
  Control* control;
  ControlView* view;
};

Receiver ReceiverOf(FormWindow& form, HWND window) {
  ControlView* view = ControlView::Of(window);
  if (view == nullptr || !view->control().Reachable()) return {form, nullptr, nullptr};
  return {form, &view->control(), view};
}

bool KeyDown(Desk& desk, const Receiver& to, Key key) {
  bool kept = false;
  desk.Deliver([&] {
    // A handler that fails hasn't taken the key away.
    kept = true;
    kept = to.control != nullptr ? to.control->UserKeyDown(key) : to.form.form().UserKeyDown(key);
  });
  return kept;
}

// The character that a key brings goes to the handlers from here, since the window may never see
// it: nobody types into a form without fields.
void KeyPress(const Receiver& to, int character) {
  to.form.desk().Deliver([&] {
    if (to.control != nullptr) {
      to.control->UserKeyPress(character);
    } else {
      to.form.form().UserKeyPress(character);
    }
  });
}

void KeyUp(const Receiver& to, Key key) {
  to.form.desk().Deliver([&] {
    if (to.control != nullptr) {
      to.control->UserKeyUp(key);
    } else {
      to.form.form().UserKeyUp(key);
    }
  });
}

void ShowFocusMarks(const FormWindow& form) {
  SendMessageW(form.window(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

void MoveFocus(const Receiver& to, int step) {
  ShowFocusMarks(to.form);
  to.form.MoveFocus(step);
}

bool PressEnter(const Receiver& to) {
  if (to.view != nullptr && (to.view->NeedsEnter() || to.view->PressEnter())) {
    return !to.view->NeedsEnter();
  }
  Control* button = to.form.DefaultButton();
  if (button == nullptr || !button->Reachable()) return false;
  to.form.desk().Deliver([&] { button->UserClick(); });
  return true;
}

// What keys do on every form. True when the key is used up.
bool Navigate(const Receiver& to, WPARAM key, int shift) {
  const bool arrows = to.view != nullptr && to.view->LetsArrowsGo() && shift == 0;
  switch (key) {
    case VK_TAB:
      if ((shift & (kCtrl | kAlt)) != 0) return false;
      MoveFocus(to, (shift & kShift) != 0 ? -1 : 1);
      return true;
    case VK_RETURN:
      return PressEnter(to);
    case VK_UP:
    case VK_LEFT:
      if (arrows) MoveFocus(to, -1);
      return arrows;
    case VK_DOWN:
    case VK_RIGHT:
      if (arrows) MoveFocus(to, 1);
      return arrows;
    default:
      return false;
  }
}

// Characters that a field of one line answers with a beep.
bool IsControlKey(WPARAM character) {
  return character == VK_TAB || character == VK_RETURN || character == VK_ESCAPE;
}

}  // namespace

bool HandleKey(Desk& desk, const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  FormWindow* form = desk.Holding(message.hwnd);
  if (form == nullptr) return false;
  const Receiver to = ReceiverOf(*form, message.hwnd);
  const int shift = ShiftState();
  const Key key{static_cast<int>(message.wParam), shift};
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (!KeyDown(desk, to, key)) return true;
      if (form->window() == nullptr) return true;
      if (!Navigate(to, message.wParam, shift)) return false;
      // The window doesn't see the key, but the handlers see its character.
      if (form->window() != nullptr && message.wParam == VK_RETURN) KeyPress(to, VK_RETURN);
      return true;
    case WM_CHAR:
      KeyPress(to, static_cast<int>(message.wParam));
      return form->window() == nullptr || IsControlKey(message.wParam);
    case WM_KEYUP:
    case WM_SYSKEYUP:
      KeyUp(to, key);
      return form->window() == nullptr;
    default:
      return false;
  }
}

}  // namespace orvik::forms::win32
