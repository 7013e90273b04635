// What a user does to a control, as a control's handlers receive it.
#pragma once

namespace orvik::forms {

// Shift states, as a sum.
constexpr int kShift = 1;
constexpr int kCtrl = 2;
constexpr int kAlt = 4;

constexpr int kKeyBackspace = 8;
constexpr int kKeyEnter = 13;
constexpr int kKeyEscape = 27;
constexpr int kKeyDelete = 46;
constexpr int kKeyA = 65;
constexpr int kKeyF5 = 116;

// A key going down or up. A handler that sets code to 0 takes the key away from whoever comes next.
struct Key {
  int code = 0;
  int shift = 0;
};

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kMiddleButton = 4;

struct Mouse {
  int button = kLeftButton;
  int shift = 0;
};

}  // namespace orvik::forms
