#include "forms/simple_controls.h"

#include "base/failure.h"

namespace orvik::forms {

void Captioned::SetCaption(TextView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed(Property::kCaption);
}

void CheckBox::SetValue(int value) {
  if (value_ == value) return;
  value_ = value;
  Changed(Property::kValue);
  if (on_click) on_click();
}

void TextBox::SetText(TextView text) {
  if (text_ == text) return;
  text_ = text;
  Changed(Property::kText);
}

void ProgressBar::SetMax(int max) {
  if (max < 1) throw Failure{};
  if (max_ == max) return;
  max_ = max;
  Changed(Property::kMax);
  if (value_ > max_) SetValue(max_);
}

void ProgressBar::SetValue(int value) {
  if (value < 0 || value > max_) throw Failure{};
  if (value_ == value) return;
  value_ = value;
  Changed(Property::kValue);
}

void StatusBar::SetText(TextView text) {
  if (text_ == text) return;
  text_ = text;
  Changed(Property::kText);
}

void Timer::SetInterval(int milliseconds) {
  if (interval_ == milliseconds) return;
  interval_ = milliseconds;
  Changed(Property::kInterval);
}

void Timer::SetActive(bool active) {
  if (active_ == active) return;
  active_ = active;
  Changed(Property::kActive);
}

void Timer::Fire() {
  if (on_timer) on_timer();
}

}  // namespace orvik::forms
