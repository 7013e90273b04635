#include "forms/control.h"

#include "forms/form.h"
#include "forms/front_end.h"
#include "forms/simple_controls.h"

namespace orvik::forms {

namespace {

bool Covers(const Bounds& over, const Bounds& under) {
  return over.left <= under.left && over.top <= under.top &&
         over.left + over.width >= under.left + under.width &&
         over.top + over.height >= under.top + under.height;
}

}  // namespace

Control::Control(Form& form, Kind kind, const char* name, Bounds bounds, int index)
    : form_(form), kind_(kind), name_(name), bounds_(bounds) {
  if (index >= 0) name_ += "(" + std::to_string(index) + ")";
  form.controls_.push_back(this);
}

Control::~Control() = default;

void Control::Changed(Property property, int position) {
  if (form_.loaded()) Front().Changed(*this, Change{property, position});
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Changed(Property::kVisible);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed(Property::kEnabled);
}

void Control::Move(const Bounds& bounds) {
  bounds_ = bounds;
  Changed(Property::kBounds);
}

bool Control::Reachable() const {
  if (!visible_ || !enabled_) return false;
  if (container_ != nullptr) return container_->Reachable();
  for (const Control* other : form_.controls()) {
    if (other != this && other->kind() == Kind::kFrame && other->visible() &&
        other->container() == nullptr && Covers(other->bounds(), bounds_)) {
      return false;
    }
  }
  return true;
}

void Control::Repaint() {
  if (form_.loaded()) Front().Repaint(*this);
}

void Control::UserClick() {
  if (on_click) on_click();
}

void Control::UserDoubleClick() {
  if (on_double_click) on_double_click();
}

void Control::UserMouse(bool down, Mouse mouse) {
  const auto& handler = down ? on_mouse_down : on_mouse_up;
  if (handler) handler(mouse);
}

bool Control::UserKeyDown(Key key) {
  if (on_key_down) on_key_down(key);
  return key.code != 0 && form_.UserKeyDown(key);
}

void Control::UserKeyPress(int character) {
  if (on_key_press) on_key_press(character);
  form_.UserKeyPress(character);
}

void Control::UserKeyUp(Key key) {
  if (on_key_up) on_key_up(key);
  if (key.code != 0) form_.UserKeyUp(key);
}

}  // namespace orvik::forms
