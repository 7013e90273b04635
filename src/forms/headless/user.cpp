#include "forms/headless/user.h"

#include <algorithm>

#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace orvik::forms::headless {

namespace {

std::string Name(const Target& target) {
  return target.control.empty() ? target.form : target.form + "." + target.control;
}

// A form on the screen. Nothing, with a reason, when a user sees none.
Form* Seen(const Target& target, std::string& why) {
  Form* form = FindForm(target.form);
  if (form == nullptr || !form->visible()) {
    why = "no form " + target.form + " is open";
    return nullptr;
  }
  return form;
}

// A control that a user can get at. Nothing, with a reason, when there is none.
Control* Reached(const Target& target, std::string& why) {
  const Form* form = Seen(target, why);
  if (form == nullptr) return nullptr;
  Control* control = form->Find(target.control);
  if (control == nullptr) {
    why = "no control " + Name(target);
    return nullptr;
  }
  switch (control->kind()) {
    case Kind::kMenu:
    case Kind::kTimer:
    case Kind::kCommonDialog:
    case Kind::kLine:
      why = Name(target) + " is nothing to point at";
      return nullptr;
    default:
      break;
  }
  if (control->Reachable()) return control;
  why = Name(target) + " can't be reached";
  return nullptr;
}

// The positions that a control with entries has now.
struct Entries {
  int first = 0;
  int count = 0;
};
std::optional<Entries> EntriesOf(const Control& control) {
  switch (control.kind()) {
    case Kind::kListBox:
      return Entries{0, static_cast<const ListBox&>(control).count()};
    case Kind::kComboBox:
      return Entries{0, static_cast<const ComboBox&>(control).count()};
    case Kind::kListView:
      return Entries{1, static_cast<const ListView&>(control).count()};
    case Kind::kTreeView:
      return Entries{1, static_cast<const TreeView&>(control).count()};
    default:
      return std::nullopt;
  }
}

// Why there is no entry at a position; empty when there is one.
std::string Lacks(const Control& control, int position) {
  const auto entries = EntriesOf(control);
  if (!entries) return control.name() + " has no entries";
  if (position >= entries->first && position - entries->first < entries->count) return {};
  return control.name() + " has no entry " + std::to_string(position);
}

std::string LacksOneOf(const Control& control, const std::vector<int>& positions) {
  for (int position : positions) {
    if (std::string why = Lacks(control, position); !why.empty()) return why;
  }
  return {};
}

// An entry becomes the current one and the selection, and nothing follows.
void MakeCurrent(Control& control, int position) {
  if (control.kind() == Kind::kListBox) {
    static_cast<ListBox&>(control).UserSelect({position}, ListBox::Follow::kNothing);
  } else if (control.kind() == Kind::kListView) {
    static_cast<ListView&>(control).UserSelect({position});
  } else if (control.kind() == Kind::kTreeView) {
    static_cast<TreeView&>(control).UserSelect(position);
  }
}

std::string ClickEntry(Control& control, int position) {
  if (std::string why = Lacks(control, position); !why.empty()) return why;
  switch (control.kind()) {
    case Kind::kListBox:
      static_cast<ListBox&>(control).UserClick(position);
      return {};
    case Kind::kListView:
      static_cast<ListView&>(control).UserClick(position);
      return {};
    case Kind::kTreeView:
      static_cast<TreeView&>(control).UserClick(position);
      return {};
    case Kind::kComboBox:
      if (static_cast<ComboBox&>(control).locked()) return control.name() + " is locked";
      static_cast<ComboBox&>(control).UserSelect(position);
      return {};
    default:
      return control.name() + " has no entries to click";
  }
}

}  // namespace

Form* FindForm(std::string_view name) {
  const auto& forms = LoadedForms();
  const auto found =
      std::find_if(forms.begin(), forms.end(), [&](const Form* f) { return f->name() == name; });
  return found == forms.end() ? nullptr : *found;
}

std::string Do(const Click& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  if (event.position) return ClickEntry(*control, *event.position);
  if (EntriesOf(*control)) return control->name() + " is clicked on an entry";
  control->UserClick();
  return {};
}

std::string Do(const DoubleClick& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  // The first of the two clicks is a click like any other.
  if (event.position) {
    why = ClickEntry(*control, *event.position);
  } else if (!EntriesOf(*control)) {
    control->UserClick();
  }
  if (why.empty() && control->form().loaded()) control->UserDoubleClick();
  return why;
}

std::string Do(const Check& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  if (control->kind() == Kind::kCheckBox && !event.position) {
    auto& box = static_cast<CheckBox&>(*control);
    if (box.checked() != event.on) box.UserClick();
    return {};
  }
  if (control->kind() == Kind::kListBox && event.position) {
    auto& list = static_cast<ListBox&>(*control);
    if (!list.has_boxes()) return control->name() + " has no boxes";
    why = Lacks(list, *event.position);
    if (why.empty()) list.UserCheck(*event.position, event.on);
    return why;
  }
  if (control->kind() == Kind::kTreeView && event.position) {
    why = Lacks(*control, *event.position);
    if (why.empty()) static_cast<TreeView&>(*control).UserCheck(*event.position, event.on);
    return why;
  }
  return Name(event.target) + " has no such box";
}

std::string Do(const Type& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  switch (control->kind()) {
    case Kind::kTextBox:
      static_cast<TextBox&>(*control).UserType(event.text);
      return {};
    case Kind::kComboBox:
      if (static_cast<ComboBox&>(*control).locked()) return control->name() + " is locked";
      static_cast<ComboBox&>(*control).UserType(event.text);
      return {};
    default:
      return Name(event.target) + " takes no text";
  }
}

std::string Do(const Select& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  why = LacksOneOf(*control, event.positions);
  if (!why.empty()) return why;
  switch (control->kind()) {
    case Kind::kListBox: {
      auto& list = static_cast<ListBox&>(*control);
      if (event.positions.size() > 1 && !list.is_extended()) {
        return control->name() + " takes one selected entry";
      }
      list.UserSelect(event.positions);
      return {};
    }
    case Kind::kListView:
      static_cast<ListView&>(*control).UserSelect(event.positions);
      return {};
    case Kind::kTreeView:
      if (event.positions.size() > 1) return control->name() + " takes one selected node";
      static_cast<TreeView&>(*control).UserSelect(event.positions.empty() ? 0 : event.positions[0]);
      return {};
    case Kind::kComboBox:
      if (event.positions.size() != 1) return control->name() + " takes one entry";
      return ClickEntry(*control, event.positions[0]);
    default:
      return Name(event.target) + " has no entries";
  }
}

std::string Do(const MouseButton& event) {
  std::string why;
  if (event.target.control.empty()) {
    Form* form = Seen(event.target, why);
    if (form != nullptr) form->UserMouse(event.down, event.mouse);
    return why;
  }
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  if (event.position) {
    why = Lacks(*control, *event.position);
    if (!why.empty()) return why;
    MakeCurrent(*control, *event.position);
  }
  control->UserMouse(event.down, event.mouse);
  return {};
}

namespace {

// What a control does with a key that no handler took away.
void ActByItself(Control& control, Key key) {
  constexpr int kSpace = 32;
  if (control.kind() == Kind::kTreeView && key.code == kSpace) {
    static_cast<TreeView&>(control).UserSpace();
  } else if (control.kind() == Kind::kListBox && key.code == kSpace) {
    static_cast<ListBox&>(control).UserSpace();
  }
}

// Down, press and up of one key, at a form or a control. A handler that takes the key away at its
// going down keeps the character back. A form that has gone meanwhile hears no more.
template <typename Receiver>
void Strike(Receiver& receiver, const Form& form, Key key) {
  const bool passed = receiver.UserKeyDown(key);
  if constexpr (std::is_same_v<Receiver, Control>) {
    if (passed && form.loaded()) ActByItself(receiver, key);
  }
  const int character = CharacterOf(key);
  if (passed && character != 0 && form.loaded()) receiver.UserKeyPress(character);
  if (form.loaded()) receiver.UserKeyUp(key);
}

}  // namespace

std::string Do(const KeyStroke& event) {
  std::string why;
  if (event.target.control.empty()) {
    Form* form = Seen(event.target, why);
    if (form != nullptr) Strike(*form, *form, event.key);
    return why;
  }
  Control* control = Reached(event.target, why);
  if (control != nullptr) Strike(*control, control->form(), event.key);
  return why;
}

std::string Do(const Arrow& event) {
  std::string why;
  Control* control = Reached(event.target, why);
  if (control == nullptr) return why;
  if (control->kind() != Kind::kUpDown) return Name(event.target) + " has no arrows";
  auto& arrows = static_cast<UpDown&>(*control);
  if (event.up) {
    arrows.UserUp();
  } else {
    arrows.UserDown();
  }
  return {};
}

std::string Do(const ChooseMenu& event) {
  std::string why;
  const Form* form = Seen(event.target, why);
  if (form == nullptr) return why;
  Control* item = form->Find(event.target.control);
  if (item == nullptr || item->kind() != Kind::kMenu) return "no menu item " + Name(event.target);
  if (!item->enabled()) return Name(event.target) + " is disabled";
  item->UserClick();
  return {};
}

std::string Do(const Resize& event) {
  std::string why;
  if (Form* form = Seen(event.target, why)) form->UserResize(event.width, event.height);
  return why;
}

std::string Do(const Close& event) {
  std::string why;
  if (Form* form = Seen(event.target, why)) form->UserClose();
  return why;
}

}  // namespace orvik::forms::headless
