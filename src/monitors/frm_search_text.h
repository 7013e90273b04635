// The form that finds the files of a tree which hold a text.
#pragma once

#include "base/keyed_collection.h"
#include "forms/form.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"

namespace orvik {

class frmSearchText : public forms::Form {
 public:
  frmSearchText();

  forms::TextBox txMain{*this, "txMain", {120, 150, 5970, 345}, u""};
  forms::Button btFind{*this, "btFind", {6210, 120, 1650, 405}, u"Найти"};
  forms::Frame rmPattern{*this, "rmPattern", {120, 570, 7740, 795}, u"Тип файлов"};
  forms::ComboBox cbPattern{*this, "cbPattern", {120, 300, 7500, 345}, u"*.*"};
  forms::ListBox lbMain{*this, "lbMain", {120, 1485, 7740, 4140}};

  // Fills the list with the files below CommandArgs that hold the text of txMain.
  void FindText();

 protected:
  void OnLoad() override;
  void OnResize() override;
};

namespace mdlMain {

// The full paths, in the order of the walk, of the files below a folder that fit a mask list, are
// shorter than a mebibyte, and hold a text somewhere, blind to letter case in the whole ANSI code
// page. There is no other encoding. The empty text is in every file that isn't empty.
KeyedCollection SearchTextInFiles(const Text& text, const Text& folder, const Text& masks);

}  // namespace mdlMain

}  // namespace orvik
