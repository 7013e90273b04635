// The form of the deletion that doesn't give up.
#pragma once

#include "forms/form.h"
#include "forms/list_controls.h"

namespace orvik {

// The list shows what is being done and is the work list: targets are read back out of it.
class frmEraser : public forms::Form {
 public:
  frmEraser();

  forms::ListBox lbMain{*this, "lbMain", {120, 120, 8790, 4860}};

  // Deletes CommandArgs, a file or a folder by EraseOneFile, against attributes and locks, however
  // long it takes, and ends the process. On most folders with subfolders it never ends: the form
  // goes on looking for folders that went with their parent.
  void EraseTarget();

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  void EraseFile();
  void EraseFolder();
  void ListTargets();
  void EraseListedFiles(std::int32_t files);
  void EraseListedFolders(std::int32_t files);
};

}  // namespace orvik
