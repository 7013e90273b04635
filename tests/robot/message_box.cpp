#include "robot/message_box.h"

#include "robot/icons.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

// The static control that holds the text.
constexpr int kTextId = 0xFFFF;

// The static control with the icon; nullptr in a box without one.
HWND IconControl(HWND box) {
  HWND found = nullptr;
  ForEachBelow(box, [&](HWND window) {
    const bool is_icon = EqualNoCase(ClassOf(window), u"Static") &&
                         (StyleOf(window) & SS_TYPEMASK) == SS_ICON &&
                         SendMessageW(window, STM_GETICON, 0, 0) != 0;
    if (is_icon) found = window;
    return found == nullptr;
  });
  return found;
}

std::optional<forms::Buttons> ButtonsOf(HWND box) {
  const auto has = [&](int id) { return GetDlgItem(box, id) != nullptr; };
  if (has(IDYES) && has(IDNO)) return forms::Buttons::kYesNo;
  if (has(IDOK)) return has(IDCANCEL) ? forms::Buttons::kOkCancel : forms::Buttons::kOk;
  return std::nullopt;
}

}  // namespace

std::optional<MessageBoxFacts> ReadMessageBox(HWND box) {
  MessageBoxFacts facts;
  const auto buttons = ButtonsOf(box);
  if (!buttons) return std::nullopt;
  facts.buttons = *buttons;
  if (const HWND control = IconControl(box)) {
    const auto icon = IconOnScreen(control);
    if (!icon) return std::nullopt;
    facts.icon = *icon;
  }
  facts.text = TextOf(GetDlgItem(box, kTextId));
  facts.title = TextOf(box);
  return facts;
}

bool AsksBeforeRecycling(HWND box) {
  const auto has = [&](int id) { return GetDlgItem(box, id) != nullptr; };
  return has(IDYES) && has(IDNO) && has(IDCANCEL);
}

int ButtonFor(forms::Answer answer) {
  switch (answer) {
    case forms::Answer::kOk:
      return IDOK;
    case forms::Answer::kCancel:
      return IDCANCEL;
    case forms::Answer::kYes:
      return IDYES;
    case forms::Answer::kNo:
      return IDNO;
  }
  return IDOK;
}

std::string_view NameOf(forms::Icon icon) {
  switch (icon) {
    case forms::Icon::kNone:
      return "none";
    case forms::Icon::kInformation:
      return "information";
    case forms::Icon::kQuestion:
      return "question";
    case forms::Icon::kCritical:
      return "critical";
  }
  return {};
}

std::string_view NameOf(forms::Buttons buttons) {
  switch (buttons) {
    case forms::Buttons::kOk:
      return "ok";
    case forms::Buttons::kOkCancel:
      return "okcancel";
    case forms::Buttons::kYesNo:
      return "yesno";
  }
  return {};
}

std::string_view NameOf(forms::Answer answer) {
  switch (answer) {
    case forms::Answer::kOk:
      return "ok";
    case forms::Answer::kCancel:
      return "cancel";
    case forms::Answer::kYes:
      return "yes";
    case forms::Answer::kNo:
      return "no";
  }
  return {};
}

}  // namespace orvik::robot
