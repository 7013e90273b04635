// The model of a form.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace orvik::forms {

// A form is a class with its controls as members, laid out in its constructor, with its event
// routines as methods. Its size is the outer one of a window whose frame takes kFrameWidth and
// kFrameHeight twips; a front end keeps the inner size and lets the system add its own frame.
constexpr int kFrameWidth = 90;
constexpr int kFrameHeight = 405;

class Menu;

// A line on a form's own surface, from one point up to another that isn't part of it, one pixel
// wide; twips, and a blue-green-red colour.
struct DrawnLine {
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  std::uint32_t color = 0;
};

// A rectangle with rounded corners, in pixels of the form's window.
struct RoundRegion {
  int left = 0, top = 0, right = 0, bottom = 0;
  int corner_width = 0, corner_height = 0;
};

class Form {
 public:
  enum class Place { kCentre, kSystem };

  // `name` is the class's name; `caption` the one of design time.
  Form(const char* name, Text caption, int width, int height, Place place = Place::kCentre);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::vector<Control*>& controls() const { return controls_; }
  Control* Find(std::string_view name) const;  // nullptr when there is none

  const Text& caption() const { return caption_; }
  void SetCaption(TextView caption);
  bool visible() const { return visible_; }
  int width() const { return width_; }
  int height() const { return height_; }
  void SetSize(int width, int height);
  bool topmost() const { return topmost_; }
  void SetTopmost(bool topmost);
  Place place() const { return place_; }
  // The form that this one stays in front of and is minimised with; nullptr for none. To be set
  // before the form is loaded.
  Form* owner() const { return owner_; }
  void SetOwner(Form& owner) { owner_ = &owner; }
  // A form that lays itself out anew at every size: the user may drag it in both directions, down
  // to two thirds of its first size and no further than the smallest width.
  bool sizable() const { return sizable_; }
  int smallest_width() const { return smallest_width_; }
  void MakeSizable(int smallest_width = 0) {
    sizable_ = true;
    smallest_width_ = smallest_width;
  }
  // A form without border and title bar, black, which can be translucent and cut to a region. Its
  // size is that of its surface.
  bool skinned() const { return skinned_; }
  void MakeSkinned() { skinned_ = true; }
  // From 0, invisible, to 255, which is also what a form has that was given nothing.
  int transparency() const { return transparency_; }
  void SetTransparency(int level);
  const std::optional<RoundRegion>& region() const { return region_; }
  void SetRegion(const RoundRegion& region);
  // Draws on the form's surface, under its controls. What is drawn stays; only the front end keeps
  // it.
  void Draw(const DrawnLine& line);

  bool loaded() const { return state_ == State::kLoading || state_ == State::kLoaded; }
  bool unloaded() const { return state_ == State::kUnloaded; }

  // Runs the load routine when the form isn't loaded.
  void Load();
  // Loads the form when it isn't loaded, and shows it. Within the load routine it shows the form
  // there and then.
  void Show();
  // The same, but comes back only when the form has gone; the other forms don't answer meanwhile.
  void ShowModal();
  // Opens a menu of the form at the mouse. The item that is chosen is clicked.
  void PopUp(Menu& menu);
  // Takes the form away: the unload routine runs, and the form is gone.
  void Unload();

  // The user's doings.
  void UserClose() { Unload(); }
  void UserResize(int width, int height);
  bool UserKeyDown(Key key);  // true when no handler took the key away
  void UserKeyPress(int character);
  void UserKeyUp(Key key);
  void UserMouse(bool down, Mouse mouse);

  std::function<void(Key&)> on_key_down;
  std::function<void(int)> on_key_press;
  std::function<void(Key&)> on_key_up;
  std::function<void(Mouse)> on_mouse_down;
  std::function<void(Mouse)> on_mouse_up;

  View* view() const { return view_.get(); }
  void SetView(std::unique_ptr<View> view) { view_ = std::move(view); }

 protected:
  // The routines of the form: at load, at unload, at the first showing and after a change of size.
  virtual void OnLoad() {}
  virtual void OnUnload() {}
  virtual void OnResize() {}

 private:
  friend class Control;
  enum class State { kNew, kLoading, kLoaded, kUnloaded };
  void Changed(Property property);
  // True when the form is to be shown now.
  bool Appear();

  const std::string name_;
  std::vector<Control*> controls_;
  Text caption_;
  int width_, height_;
  const Place place_;
  Form* owner_ = nullptr;
  bool visible_ = false;
  bool topmost_ = false;
  bool sizable_ = false;
  int smallest_width_ = 0;
  bool skinned_ = false;
  int transparency_ = 255;
  std::optional<RoundRegion> region_;
  State state_ = State::kNew;
  std::unique_ptr<View> view_;
};

// The forms that are loaded, in the order of loading.
const std::vector<Form*>& LoadedForms();

}  // namespace orvik::forms
