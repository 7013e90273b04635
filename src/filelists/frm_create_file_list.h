// The form that writes the file list of a folder.
#pragma once

#include "forms/common_dialog.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace orvik {

class frmCreateFileList : public forms::Form {
 public:
  frmCreateFileList();

  forms::Label frMain{*this, "frMain", {120, 120, 6360, 255}, u"Ожидание ..."};
  forms::ProgressBar pbMain{*this, "pbMain", {120, 480, 6360, 285}};
  forms::CommonDialog cdMain{*this, "cdMain"};

 protected:
  void OnLoad() override;

 private:
  void CreateList();
};

}  // namespace orvik
