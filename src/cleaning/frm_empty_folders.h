// The form that lists the folders which count as empty, and removes them.
#pragma once

#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"

namespace orvik {

// The list is the only record of what was found. The limit lives in the registry alone: every
// reader reads it there.
class frmEmptyFolders : public forms::Form {
 public:
  frmEmptyFolders();

  forms::ListBox lbMain{*this,
                        "lbMain",
                        {120, 120, 8790, 4500},
                        forms::ListBox::Boxes::kNone,
                        forms::ListBox::Selection::kExtended};
  forms::Label fr01{
      *this, "fr01", {120, 4740, 3960, 255}, u"Пустыми считать папки не более 00 кб "};
  forms::UpDown udSize{*this, "udSize", {4140, 4680, 270, 375}};
  forms::Label frFilesCount{*this, "frFilesCount", {4560, 4740, 4350, 255}, u""};
  forms::Label frRights{*this, "frRights", {120, 5115, 8790, 240}, u"Rights"};
  forms::Timer clInfo{*this, "clInfo", 100, false};

  // Fills the list with the folders of CommandArgs that are empty by the present limit.
  void ScanEmptyFolders();
  // Writes the limit into the caption of fr01.
  void ShowSizeLimit();

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  void ChangeLimit(int step);
  void ShowProgress();
  void OpenCurrent();
  void CountFiles();
  void TakeKey(const forms::Key& key);
  void SelectAll();
  void DeleteSelected();
};

}  // namespace orvik
