// The form of the copy job.
#pragma once

#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"

namespace orvik {

// Opens low, with everything from cxReport on under its lower edge; pbOtherOptions opens the rest
// for good. The source folder is never chosen here: it is CommandArgs.
class frmMain : public forms::Form {
 public:
  frmMain();

  forms::Label mtOut{*this, "mtOut", {120, 75, 6870, 240}, u"В папку"};
  forms::ComboBox cbOut{*this, "cbOut", {120, 330, 6390, 345}};
  forms::Picture pbDest{*this, "pbDest", {6600, 315, 390, 375}, forms::Picture::Image::kFolder};
  forms::Label fr02{*this, "fr02", {120, 750, 4080, 240}, u"Файлы типа"};
  forms::ComboBox cbMask{*this, "cbMask", {120, 1005, 4080, 345}};
  forms::Button btStart{*this, "btStart", {4320, 975, 2670, 405}, u"Начать копирование"};
  forms::Line lnOne{*this, "lnOne", {120, 1485, 6870, 0}};
  forms::Label mtFile{*this, "mtFile", {120, 1575, 6870, 255}, u"Подготовка к копированию"};
  // The bar and cxOnlyMissed share their place: the box goes when the job starts.
  forms::ProgressBar pbMain{*this, "pbMain", {120, 1905, 6870, 285}};
  forms::CheckBox cxOnlyMissed{
      *this, "cxOnlyMissed", {120, 1905, 6870, 285}, u"Проверять только отсутствие файла"};
  forms::Line lnTwo{*this, "lnTwo", {120, 2655, 6870, 0}};
  forms::CheckBox cxReport{*this,
                           "cxReport",
                           {120, 2745, 6870, 285},
                           u"Выдать только отчет о требующих обновления файлах"};
  forms::Picture pbOtherOptions{
      *this, "pbOtherOptions", {6600, 2250, 390, 330}, forms::Picture::Image::kMore};
  forms::CheckBox cxBreakFolderTree{
      *this,
      "cxBreakFolderTree",
      {120, 3060, 6870, 285},
      u"Копировать файлы в одну папку (названия могут быть изменены)"};
  forms::CheckBox cxMoveFiles{*this, "cxMoveFiles", {120, 3375, 1680, 285}, u"Перемещать"};
  forms::CheckBox cxRemoveToRecycler{
      *this, "cxRemoveToRecycler", {1920, 3375, 5070, 285}, u"в корзину,"};
  forms::CheckBox cxAfterEmptyFolderCheck{
      *this, "cxAfterEmptyFolderCheck", {120, 3690, 6870, 285}, u"Затем проверить пустые папки"};
  forms::Line lnTree{*this, "lnTree", {120, 4080, 6870, 0}};
  forms::CheckBox opNewFilesToNewFolder{*this,
                                        "opNewFilesToNewFolder",
                                        {120, 4170, 6870, 285},
                                        u"Копирование только новых файлов также в папку :"};
  forms::ComboBox cbOut2{*this, "cbOut2", {120, 4500, 6390, 345}};
  forms::Picture pbDest2{*this, "pbDest2", {6600, 4485, 390, 375}, forms::Picture::Image::kFolder};
  forms::Line lnFour{*this, "lnFour", {120, 4980, 6870, 0}};
  // Nothing reads the box, nothing enables the list: a checksum list comes in by a script only.
  forms::CheckBox opFileList{
      *this, "opFileList", {120, 5070, 6870, 285}, u"Копировать по Списку Контрольных Сумм"};
  forms::ComboBox cbFileList{*this, "cbFileList", {120, 5400, 6390, 345}};
  forms::Picture pbOpenFileList{
      *this, "pbOpenFileList", {6600, 5385, 390, 375}, forms::Picture::Image::kFile};
  forms::Label frRights{*this, "frRights", {120, 5850, 6870, 240}, u"Rights"};
  // The bottom of the open form.
  forms::Line lnHeight{*this, "lnHeight", {120, 6150, 6870, 0}};
  forms::Timer clExit{*this, "clExit", 10000, false};
  // The report. It moves to the top at load and covers the whole open form once it is visible.
  forms::Frame frLog{*this, "frLog", {0, 6600, 7110, 6135}, u""};
  forms::ListBox lbLog{*this, "lbLog", {120, 120, 6870, 5400}, forms::ListBox::Boxes::kCheck};
  forms::Button btCopySelectedFiles{
      *this, "btCopySelectedFiles", {4320, 5610, 2670, 405}, u"Копировать файлы"};

 protected:
  void OnLoad() override;

 private:
  void WireEvents();
  void Lay();
  void PlayScript();
  // Takes one line of a script, in lower case. A command to run after the job goes to `shell`.
  void TakeScriptLine(TextView line, Text& shell);
  void Browse(forms::ComboBox& combo);
  // Shift+Backspace takes the chosen entry off a list.
  void RemoveRecent(forms::ComboBox& combo, forms::Key& key);
};

}  // namespace orvik
