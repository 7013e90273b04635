// The form that finds files of like content, and removes those that the user marks.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "base/checked.h"
#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/menu.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace orvik {

// The tree is the only record of a search and of its review. A group's node, unchecked, is the file
// that the walk met first; the nodes below it, checked, are the later ones with its checksum.
// Everything that the user can do works on all nodes alike: nothing keeps a last copy alive.
class frmDoubles : public forms::Form {
 public:
  frmDoubles();

  forms::Frame rmPattern{*this, "rmPattern", {120, 60, 2790, 795}, u"Тип файлов"};
  forms::ComboBox cbPattern{*this, "cbPattern", {120, 300, 2550, 345}, u"*.*"};
  forms::Button btFind{*this, "btFind", {3030, 255, 1350, 405}, u"Найти"};
  forms::Button btSources{*this, "btSources", {4500, 255, 2370, 405}, u"Искать в каталогах ..."};
  forms::Button btKill{*this, "btKill", {6990, 255, 2370, 405}, u"Удалить выделенные"};
  forms::TreeView tvMain{*this, "tvMain", {0, 975, 9480, 5625}};
  forms::Menu mnMain{*this, "mnMain", u"HideMenu"};
  std::array<forms::Menu, 2> mnSelByMask{
      forms::Menu{mnMain, "mnSelByMask", u"Выделить содержащие ...", 0},
      forms::Menu{mnMain, "mnSelByMask", u"Снять выделение у содержащих ...", 1}};
  forms::Menu mnReSel{mnMain, "mnReSel", u"Инвертировать выделение"};
  forms::Menu mnUnselect{mnMain, "mnUnselect", u"Снять выделение"};

  // Fills the tree with the groups of the files of CommandArgs and of DoublesExtraFolders.
  void FindDoubles();

 protected:
  void OnLoad() override;
  void OnUnload() override;
  void OnResize() override;

 private:
  void WireEvents();
  void TakePatternKey(forms::Key& key);
  void ShowProgress(std::int32_t at, std::int32_t last);
  void AddDuplicate(const Text& key, const Text& first, const Text& path, std::int32_t index);
  // These two are the review.
  void KillMarked();
  void KillSelected();
  // The text of the selected node; throws Failure when there is none.
  const Text& SelectedText() const;
  void TakeMouse(forms::Mouse mouse);
  void MarkByMask(bool on);
  void Invert();
  void UnmarkAll();
};

}  // namespace orvik
