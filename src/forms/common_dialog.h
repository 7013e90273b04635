// The dialog that asks for a file's name.
#pragma once

#include "forms/control.h"
#include "forms/front_end.h"

namespace orvik::forms {

class CommonDialog : public Control {
 public:
  CommonDialog(Form& form, const char* name) : Control(form, Kind::kCommonDialog, name, {}) {}

  // "description|mask|description|mask".
  const Text& filter() const { return filter_; }
  void SetFilter(TextView filter);
  // The name that was chosen last; a cancelled dialog leaves it.
  const Text& filename() const { return filename_; }

  void ShowOpen() { Ask(FileDialog::kOpen); }
  void ShowSave() { Ask(FileDialog::kSave); }

 private:
  void Ask(FileDialog dialog);

  Text filter_;
  Text filename_;
};

}  // namespace orvik::forms
