// The form of the file base.
#pragma once

#include <array>

#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"

namespace orvik {

class frmFileBase : public forms::Form {
 public:
  frmFileBase();

  forms::ListBox lbSources{*this, "lbSources", {120, 375, 6390, 1380}};
  forms::Picture pbAddSource{
      *this, "pbAddSource", {6600, 375, 390, 375}, forms::Picture::Image::kFolder};
  forms::ComboBox cbPattern{*this, "cbPattern", {120, 2130, 2640, 345}, u"*.*"};
  forms::TextBox txFileCount{*this, "txFileCount", {2910, 2130, 3780, 345}, u"256"};
  forms::UpDown udMain{*this, "udMain", {6720, 2130, 270, 345}};
  forms::TextBox txFileFormat{*this, "txFileFormat", {120, 2880, 3330, 345}, u"FLx00000"};
  forms::TextBox txDirFormat{*this, "txDirFormat", {3600, 2880, 3390, 345}, u"BFx00000"};
  forms::TextBox txBaseLocation{*this, "txBaseLocation", {120, 3630, 6390, 345}, u""};
  forms::Picture pbDest{*this, "pbDest", {6600, 3615, 390, 375}, forms::Picture::Image::kFolder};
  forms::CheckBox opSaveFileNames{
      *this, "opSaveFileNames", {120, 4170, 6870, 285}, u"Не изменять имена файлов"};
  forms::CheckBox opMoveFiles{
      *this, "opMoveFiles", {120, 4485, 6870, 285}, u"Удалить исходные файлы"};
  forms::Button btCreate{*this, "btCreate", {4320, 4890, 2670, 405}, u"Да будет Так"};
  forms::ProgressBar pbMain{*this, "pbMain", {120, 4950, 4050, 285}};
  forms::Label frRights{*this, "frRights", {120, 5490, 6870, 240}, u"Rights"};
  // The titles of the fields.
  std::array<forms::Label, 6> fr01{
      forms::Label{
          *this, "fr01", {120, 120, 6870, 240}, u"Директории, содержащие исходные файлы", 0},
      forms::Label{*this, "fr01", {120, 1875, 2640, 240}, u"Тип файлов", 1},
      forms::Label{*this, "fr01", {2910, 1875, 4080, 240}, u"Количество файлов в директориях", 2},
      forms::Label{*this, "fr01", {120, 2625, 3330, 240}, u"Формат наименований файлов", 3},
      forms::Label{*this, "fr01", {3600, 2625, 3390, 240}, u"Формат наименований папок", 4},
      forms::Label{*this, "fr01", {120, 3375, 6870, 240}, u"Расположение новой базы", 5}};
  std::array<forms::Line, 2> ln01{forms::Line{*this, "ln01", {120, 4080, 6870, 0}, 0},
                                  forms::Line{*this, "ln01", {120, 5400, 6870, 0}, 1}};

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  void WireEvents();
  void ChangeCount(int step);
  void Create();
};

}  // namespace orvik
