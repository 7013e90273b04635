// The model of a control: its state, its rules and its handlers, without any window.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/text.h"
#include "forms/change.h"
#include "forms/events.h"

namespace orvik::forms {

class Form;
class Frame;

enum class Kind {
  kLabel,
  kButton,
  kFrame,
  kMenu,
  kCheckBox,
  kTextBox,
  kComboBox,
  kListBox,
  kListView,
  kTreeView,
  kProgressBar,
  kStatusBar,
  kTimer,
  kCommonDialog,
  kPicture,
  kUpDown,
  kLine,
};

// Position and size in twips, 1440 to the inch, within the form or the frame that holds the
// control.
struct Bounds {
  int left = 0, top = 0, width = 0, height = 0;
};

// Whatever a front end keeps for a control: a window, an adapter. The model owns it and never looks
// into it.
class View {
 public:
  virtual ~View() = default;
};

// A control belongs to one form, is a member of its class, and registers itself there in the order
// of declaration, which is the order of dumps and of the tab key.
//
// Setters return at once when nothing changes; else they store and tell the front end. They are for
// the program. What the user does comes in through the routines whose names begin with User; these
// store in the same way, then call the handlers.
class Control {
 public:
  // `index` is the control's place in a control array, -1 outside of one.
  Control(Form& form, Kind kind, const char* name, Bounds bounds, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  Kind kind() const { return kind_; }
  // UTF-8; a member of a control array is "frCRC(0)".
  const std::string& name() const { return name_; }

  bool visible() const { return visible_; }
  void SetVisible(bool visible);
  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  const Bounds& bounds() const { return bounds_; }
  void Move(const Bounds& bounds);

  // The frame that holds the control, or nullptr.
  Frame* container() const { return container_; }
  void PutInto(Frame& frame) { container_ = &frame; }
  // What moves or grows when the user widens a form that allows it.
  enum class Anchor { kNone, kRight, kStretch };
  Anchor anchor() const { return anchor_; }
  void SetAnchor(Anchor anchor) { anchor_ = anchor; }
  // What a picture button says to a screen reader and as a tool tip.
  const Text& hint() const { return hint_; }
  void SetHint(Text hint) { hint_ = std::move(hint); }

  // True when a user could get at the control: it and what holds it are visible, it is enabled, and
  // no frame lies over it.
  bool Reachable() const;

  // Asks the front end to show the control's present state at once.
  void Repaint();

  // The user clicks. Controls with entries have more of these.
  virtual void UserClick();
  void UserDoubleClick();
  void UserMouse(bool down, Mouse mouse);
  // Key down, key press and key up in one, at the control and then at the form. True when no
  // handler took the key away, so that the control may do with it what it does by itself.
  bool UserKeyDown(Key key);
  void UserKeyPress(int character);
  void UserKeyUp(Key key);

  std::function<void()> on_click;
  std::function<void()> on_double_click;
  std::function<void(Key&)> on_key_down;
  std::function<void(int)> on_key_press;
  std::function<void(Key&)> on_key_up;
  std::function<void(Mouse)> on_mouse_down;
  std::function<void(Mouse)> on_mouse_up;

  View* view() const { return view_.get(); }
  void SetView(std::unique_ptr<View> view) { view_ = std::move(view); }

 protected:
  void Changed(Property property, int position = -1);

 private:
  Form& form_;
  const Kind kind_;
  std::string name_;
  Bounds bounds_;
  bool visible_ = true;
  bool enabled_ = true;
  Frame* container_ = nullptr;
  Anchor anchor_ = Anchor::kNone;
  Text hint_;
  std::unique_ptr<View> view_;
};

}  // namespace orvik::forms
