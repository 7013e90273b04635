#include "forms/form.h"

#include <algorithm>

#include "forms/front_end.h"
#include "forms/instance.h"

namespace orvik::forms {

namespace {

// Neither list is taken apart with the process: that would cost as long as a job of many rows.
std::vector<Form*>& Loaded() {
  static auto& forms = *new std::vector<Form*>;
  return forms;
}

}  // namespace

const std::vector<Form*>& LoadedForms() { return Loaded(); }

std::vector<std::unique_ptr<Form>>& FormInstances() {
  static auto& instances = *new std::vector<std::unique_ptr<Form>>;
  return instances;
}

void ForgetForms() {
  Loaded().clear();
  FormInstances().clear();
}

Form::Form(const char* name, Text caption, int width, int height, Place place)
    : name_(name), caption_(std::move(caption)), width_(width), height_(height), place_(place) {}

Form::~Form() { std::erase(Loaded(), this); }

Control* Form::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::Changed(Property property) {
  if (loaded()) Front().Changed(*this, Change{property});
}

void Form::SetCaption(TextView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed(Property::kCaption);
}

void Form::SetSize(int width, int height) {
  if (width_ == width && height_ == height) return;
  width_ = width;
  height_ = height;
  Changed(Property::kBounds);
  OnResize();
}

void Form::SetTopmost(bool topmost) {
  const bool again = topmost_ == topmost;
  if (again && !topmost) return;
  topmost_ = topmost;
  Changed(again ? Property::kTopmostAgain : Property::kTopmost);
}

void Form::SetTransparency(int level) {
  if (transparency_ == level) return;
  transparency_ = level;
  Changed(Property::kSkin);
}

void Form::SetRegion(const RoundRegion& region) {
  region_ = region;
  Changed(Property::kSkin);
}

void Form::Draw(const DrawnLine& line) {
  if (loaded()) Front().Draw(*this, line);
}

void Form::Load() {
  if (state_ != State::kNew) return;
  state_ = State::kLoading;
  Loaded().push_back(this);
  Front().Load(*this);
  OnLoad();
  if (state_ == State::kLoading) state_ = State::kLoaded;
}

bool Form::Appear() {
  Load();
  // A form may take itself away in its load routine.
  if (!loaded() || visible_) return false;
  visible_ = true;
  OnResize();
  return true;
}

void Form::Show() {
  if (Appear()) Front().Show(*this);
}

void Form::ShowModal() {
  if (Appear()) Front().ShowModal(*this);
}

void Form::PopUp(Menu& menu) { Front().PopUp(menu); }

void Form::Unload() {
  if (!loaded()) return;
  Front().Unload(*this);
  OnUnload();
  visible_ = false;
  state_ = State::kUnloaded;
  std::erase(Loaded(), this);
  Front().Unloaded(*this);
}

void Form::UserResize(int width, int height) { SetSize(width, height); }

bool Form::UserKeyDown(Key key) {
  if (on_key_down) on_key_down(key);
  return key.code != 0;
}

void Form::UserKeyPress(int character) {
  if (on_key_press) on_key_press(character);
}

void Form::UserKeyUp(Key key) {
  if (on_key_up) on_key_up(key);
}

void Form::UserMouse(bool down, Mouse mouse) {
  const auto& handler = down ? on_mouse_down : on_mouse_up;
  if (handler) handler(mouse);
}

}  // namespace orvik::forms
