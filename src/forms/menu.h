// A pop-up menu and its items.
#pragma once

#include "forms/simple_controls.h"

namespace orvik::forms {

// A menu stands invisible on its form until Form::PopUp opens it; an item belongs to a menu and is
// chosen by a click.
class Menu : public Captioned {
 public:
  Menu(Form& form, const char* name, Text caption)
      : Captioned(form, Kind::kMenu, name, {}, std::move(caption)) {
    SetVisible(false);
  }
  Menu(Menu& parent, const char* name, Text caption, int index = -1)
      : Captioned(parent.form(), Kind::kMenu, name, {}, std::move(caption), index),
        parent_(&parent) {}

  // The menu that holds the item, nullptr for a menu itself.
  Menu* parent() const { return parent_; }

 private:
  Menu* parent_ = nullptr;
};

}  // namespace orvik::forms
