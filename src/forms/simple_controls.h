// Controls without entries.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/control.h"

namespace orvik::forms {

// A control that shows one caption.
class Captioned : public Control {
 public:
  Captioned(Form& form, Kind kind, const char* name, Bounds bounds, Text caption, int index = -1)
      : Control(form, kind, name, bounds, index), caption_(std::move(caption)) {}

  const Text& caption() const { return caption_; }
  void SetCaption(TextView caption);

 private:
  Text caption_;
};

class Label : public Captioned {
 public:
  // What is cut when the caption is longer than the label: its end, or the middle of a path.
  enum class Cut { kEnd, kPath };

  Label(Form& form, const char* name, Bounds bounds, Text caption, int index = -1)
      : Captioned(form, Kind::kLabel, name, bounds, std::move(caption), index) {}

  Cut cut() const { return cut_; }
  void SetCut(Cut cut) { cut_ = cut; }
  // How the caption is written where it isn't in the system's font and colour.
  struct Style {
    std::uint32_t color = 0;  // blue-green-red
    bool bold = false;
    bool serif = false;
  };
  const std::optional<Style>& style() const { return style_; }
  void SetStyle(const Style& style) { style_ = style; }

 private:
  Cut cut_ = Cut::kEnd;
  std::optional<Style> style_;
};

class Button : public Captioned {
 public:
  Button(Form& form, const char* name, Bounds bounds, Text caption)
      : Captioned(form, Kind::kButton, name, bounds, std::move(caption)) {}
  // The button that Enter presses.
  bool is_default() const { return is_default_; }
  void MakeDefault() { is_default_ = true; }

 private:
  bool is_default_ = false;
};

// A box around other controls, which lie over everything behind it.
class Frame : public Captioned {
 public:
  Frame(Form& form, const char* name, Bounds bounds, Text caption)
      : Captioned(form, Kind::kFrame, name, bounds, std::move(caption)) {}
};

class CheckBox : public Captioned {
 public:
  CheckBox(Form& form, const char* name, Bounds bounds, Text caption)
      : Captioned(form, Kind::kCheckBox, name, bounds, std::move(caption)) {}

  // 0 or 1.
  int value() const { return value_; }
  bool checked() const { return value_ != 0; }
  // A change by the program runs the click handler too, as a click does.
  void SetValue(int value);
  void UserClick() override { SetValue(value_ == 0 ? 1 : 0); }

 private:
  int value_ = 0;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, const char* name, Bounds bounds, Text text)
      : Control(form, Kind::kTextBox, name, bounds), text_(std::move(text)) {}

  const Text& text() const { return text_; }
  void SetText(TextView text);
  void UserType(TextView text) { SetText(text); }

 private:
  Text text_;
};

// A bar that refuses what a bar can't show: a maximum below 1, a value outside 0 to the maximum.
class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, const char* name, Bounds bounds)
      : Control(form, Kind::kProgressBar, name, bounds) {}

  int max() const { return max_; }
  // Throws Failure below 1. A value above the new maximum comes down to it.
  void SetMax(int max);
  int value() const { return value_; }
  // Throws Failure outside 0 to max().
  void SetValue(int value);

 private:
  int max_ = 100;
  int value_ = 0;
};

class StatusBar : public Control {
 public:
  StatusBar(Form& form, const char* name, Bounds bounds)
      : Control(form, Kind::kStatusBar, name, bounds) {}
  const Text& text() const { return text_; }
  void SetText(TextView text);

 private:
  Text text_;
};

// Fires on the user-interface thread, during yields and between events, every interval from the
// moment of its activation. Switching on what is on doesn't restart it.
class Timer : public Control {
 public:
  Timer(Form& form, const char* name, int interval_ms, bool active)
      : Control(form, Kind::kTimer, name, {}), interval_(interval_ms), active_(active) {}

  int interval() const { return interval_; }
  void SetInterval(int milliseconds);
  bool active() const { return active_; }
  void SetActive(bool active);
  // The front end's clock has come to it.
  void Fire();

  std::function<void()> on_timer;

 private:
  int interval_;
  bool active_;
};

// A picture, used as a button.
class Picture : public Control {
 public:
  // What it shows.
  enum class Image { kFolder, kFile, kMore, kExit };
  Picture(Form& form, const char* name, Bounds bounds, Image image)
      : Control(form, Kind::kPicture, name, bounds), image_(image) {}
  Image image() const { return image_; }

 private:
  Image image_;
};

// A pair of arrows without a value of its own.
class UpDown : public Control {
 public:
  UpDown(Form& form, const char* name, Bounds bounds)
      : Control(form, Kind::kUpDown, name, bounds) {}

  void UserUp() {
    if (on_up) on_up();
  }
  void UserDown() {
    if (on_down) on_down();
  }

  std::function<void()> on_up;
  std::function<void()> on_down;
};

// A decorative line, drawn from the top left to the bottom right corner of its bounds.
class Line : public Control {
 public:
  Line(Form& form, const char* name, Bounds bounds, int index = -1)
      : Control(form, Kind::kLine, name, bounds, index) {}

  // Blue-green-red; nothing for the system's colour of shadows.
  const std::optional<std::uint32_t>& color() const { return color_; }
  void SetColor(std::uint32_t color) { color_ = color; }

 private:
  std::optional<std::uint32_t> color_;
};

}  // namespace orvik::forms
