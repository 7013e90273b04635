#include "robot/hands.h"

#include <algorithm>

#include "forms/form.h"
#include "robot/controls.h"
#include "robot/input.h"
#include "robot/list_reader.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

namespace script = forms::headless;
using forms::Kind;

constexpr int kTwipsPerInch = 1440;
// Typed text arrives key by key; this is how long it may take, in steps of so many milliseconds.
constexpr int kTypingTries = 400;
constexpr int kTypingPause = 5;

std::string Name(const script::Target& target) { return target.form + "." + target.control; }

POINT MiddleOf(HWND window) {
  const RECT area = AreaOf(window);
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

bool IsOn(HWND check_box) { return SendMessageW(check_box, BM_GETCHECK, 0, 0) == BST_CHECKED; }

int Pixels(int twips, HWND window) {
  const HDC context = GetDC(window);
  const int dpi = GetDeviceCaps(context, LOGPIXELSX);
  ReleaseDC(window, context);
  return MulDiv(twips, dpi, kTwipsPerInch);
}

// The window in which text is typed; nullptr where none can be.
HWND FieldFor(const Found& control) {
  if (control.kind == Kind::kTextBox) return control.window;
  return control.kind == Kind::kComboBox ? FieldOf(control.window) : nullptr;
}

bool IsPlain(TextView text) {
  return std::none_of(text.begin(), text.end(), [](char16_t c) { return c < u' '; });
}

}  // namespace

HWND Hands::Form(const script::Target& target) const {
  const HWND form = stage_.forms().Find(target.form);
  if (form == nullptr) throw Refused{"no form " + target.form + " is open"};
  return form;
}

Found Hands::Control(const script::Target& target) const {
  const HWND window = FindControl(Form(target), target.control);
  if (window == nullptr) throw Refused{"no control " + Name(target)};
  const Found control{stage_.program().process(), window, KindOf(window), target.control};
  if (control.kind == Kind::kLine) throw Refused{Name(target) + " is nothing to point at"};
  if (!Reachable(window)) throw Refused{Name(target) + " can't be reached"};
  return control;
}

void Hands::ClickControl(const Found& control) {
  if (EntryCount(control)) throw Refused{control.name + " is clicked on an entry"};
  // Sent to the control itself, which answers when all that the click sets off is done.
  if (EqualNoCase(ClassOf(control.window), u"Button")) {
    stage_.messenger().Send(control.window, BM_CLICK);
    return;
  }
  RECT area{};
  GetClientRect(control.window, &area);
  const LPARAM at = MAKELPARAM(area.right / 2, area.bottom / 2);
  stage_.messenger().Send(control.window, WM_LBUTTONDOWN, MK_LBUTTON, at);
  stage_.messenger().Send(control.window, WM_LBUTTONUP, 0, at);
}

void Hands::ClickEntry(const Found& control, int position) {
  Require(control, position);
  if (control.kind == Kind::kComboBox) {
    ChooseInComboBox(control, position);
  } else {
    BringToFront(control.window);
    PressMouse(PointOfEntry(control, position), Press::kClick);
  }
}

void Hands::Do(const script::Click& event) {
  const Found control = Control(event.target);
  if (event.position) {
    ClickEntry(control, *event.position);
  } else {
    ClickControl(control);
  }
}

void Hands::Do(const script::DoubleClick& event) {
  const Found control = Control(event.target);
  if (event.position) Require(control, *event.position);
  BringToFront(control.window);
  PressMouse(event.position ? PointOfEntry(control, *event.position) : MiddleOf(control.window),
             Press::kDoubleClick);
}

void Hands::Do(const script::Check& event) {
  const Found control = Control(event.target);
  if (control.kind == Kind::kCheckBox && !event.position) {
    if (IsOn(control.window) != event.on) ClickControl(control);
    return;
  }
  const bool tree = control.kind == Kind::kTreeView;
  if ((control.kind != Kind::kListBox && !tree) || !event.position) {
    throw Refused{Name(event.target) + " has no such box"};
  }
  if (!tree && (!IsListView(control.window) || !HasBoxes(control.window))) {
    throw Refused{control.name + " has no boxes"};
  }
  Require(control, *event.position);
  if (IsChecked(control, *event.position) == event.on) return;
  BringToFront(control.window);
  PressMouse(PointOfEntry(control, *event.position, Spot::kBox), Press::kClick);
}

void Hands::Do(const script::Type& event) {
  const Found control = Control(event.target);
  const HWND field = FieldFor(control);
  if (field == nullptr) throw Refused{Name(event.target) + " takes no text"};
  if ((StyleOf(field) & ES_READONLY) != 0) throw Refused{control.name + " is locked"};
  GiveFocus(field);
  SendMessageW(field, EM_SETSEL, 0, -1);
  if (event.text.empty() || !IsPlain(event.text)) {
    // What has no key to type it comes as by the clipboard.
    SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(event.text)));
    return;
  }
  TypeCharacters(event.text);
  for (int tries = 0; tries < kTypingTries && TextOf(field) != event.text; ++tries) {
    Messenger::Listen(kTypingPause);
  }
}

void Hands::Do(const script::Select& event) {
  const Found control = Control(event.target);
  if (!EntryCount(control)) throw Refused{Name(event.target) + " has no entries"};
  for (int position : event.positions) Require(control, position);
  if (control.kind == Kind::kComboBox) {
    if (event.positions.size() != 1) throw Refused{control.name + " takes one entry"};
    ChooseInComboBox(control, event.positions[0]);
    return;
  }
  const bool single = control.kind == Kind::kTreeView ? true
                      : IsListView(control.window)
                          ? (StyleOf(control.window) & LVS_SINGLESEL) != 0
                          : (StyleOf(control.window) & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) == 0;
  if (single && event.positions.size() > 1) {
    const bool tree = control.kind == Kind::kTreeView;
    throw Refused{control.name + " takes one selected " + (tree ? "node" : "entry")};
  }
  GiveFocus(control.window);
  SelectEntries(control, event.positions);
}

void Hands::Do(const script::MouseButton& event) {
  const Press press = event.down ? Press::kDown : Press::kUp;
  if (event.target.control.empty()) {
    // Sent, since no point of the form need be free of controls.
    const bool right = event.mouse.button == forms::kRightButton;
    const bool middle = event.mouse.button == forms::kMiddleButton;
    const UINT first = right ? WM_RBUTTONDOWN : middle ? WM_MBUTTONDOWN : WM_LBUTTONDOWN;
    const WPARAM keys = ((event.mouse.shift & forms::kShift) != 0 ? MK_SHIFT : 0U) |
                        ((event.mouse.shift & forms::kCtrl) != 0 ? MK_CONTROL : 0U);
    stage_.messenger().Send(Form(event.target), event.down ? first : first + 1, keys);
    return;
  }
  const Found control = Control(event.target);
  BringToFront(control.window);
  const POINT at =
      event.position ? PointOfEntry(control, *event.position) : MiddleOf(control.window);
  PressMouse(at, press, event.mouse);
}

void Hands::Do(const script::KeyStroke& event) {
  if (event.target.control.empty()) {
    BringToFront(Form(event.target));
  } else {
    const Found control = Control(event.target);
    const HWND field = FieldFor(control);
    GiveFocus(field != nullptr ? field : control.window);
  }
  StrikeKey(event.key);
}

void Hands::Do(const script::Arrow& event) {
  const Found control = Control(event.target);
  if (control.kind != Kind::kUpDown) throw Refused{Name(event.target) + " has no arrows"};
  RECT area{};
  GetClientRect(control.window, &area);
  // The arrows lie one above the other.
  const LPARAM at = MAKELPARAM(area.right / 2, event.up ? area.bottom / 4 : area.bottom * 3 / 4);
  stage_.messenger().Send(control.window, WM_LBUTTONDOWN, MK_LBUTTON, at);
  stage_.messenger().Send(control.window, WM_LBUTTONUP, 0, at);
}

void Hands::Do(const script::ChooseMenu& event) {
  stage_.menus().Choose(Form(event.target), event.target.control);
}

void Hands::Do(const script::Resize& event) {
  const HWND form = Form(event.target);
  RECT inner{};
  GetClientRect(form, &inner);
  const RECT outer = AreaOf(form);
  const int width = Pixels(event.width - forms::kFrameWidth, form);
  const int height = Pixels(event.height - forms::kFrameHeight, form);
  SetWindowPos(form, nullptr, 0, 0, width + (outer.right - outer.left) - inner.right,
               height + (outer.bottom - outer.top) - inner.bottom,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Hands::Do(const script::Close& event) {
  stage_.messenger().Send(Form(event.target), WM_SYSCOMMAND, SC_CLOSE);
}

}  // namespace orvik::robot
