// The form that holds one file against other programs for as long as it stands.
#pragma once

#include <memory>

#include "forms/form.h"
#include "forms/simple_controls.h"
#include "host/file_system.h"

namespace orvik {

class frmFileLock : public forms::Form {
 public:
  frmFileLock();

  forms::Label frMain{*this, "frMain", {120, 150, 6510, 255}, u"..."};

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  // The open file is the lock; nothing where the file couldn't be opened, of which nobody is told.
  std::unique_ptr<host::File> held_;
};

}  // namespace orvik
