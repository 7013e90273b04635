// The form of the further folders that a duplicate search takes along.
#pragma once

#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"

namespace orvik {

// The registry keeps all folders of the list. DoublesExtraFolders holds all of them as long as the
// form is open, and those with a checked box once it has closed; the boxes themselves are not kept.
class frmSources : public forms::Form {
 public:
  frmSources();

  forms::ListBox lbSources{
      *this, "lbSources", {120, 120, 6270, 3300}, forms::ListBox::Boxes::kCheck};
  forms::Button btAddSource{*this, "btAddSource", {120, 3540, 1650, 405}, u"Добавить ..."};
  forms::Button btRemoveSource{*this, "btRemoveSource", {1890, 3540, 1650, 405}, u"Удалить"};

  void ShowSources();
  // Makes DoublesExtraFolders every folder of the list, whatever its box shows, and saves them.
  void StoreSources();

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  void AddSource();
};

}  // namespace orvik

namespace orvik::mdlMain {

// Reads the known folders from the registry into DoublesExtraFolders.
void LoadDoublesSources();

}  // namespace orvik::mdlMain
