#include "monitors/frm_search_text.h"

#include "base/failure.h"
#include "fileengine/paths.h"
#include "host/registry.h"
#include "platform/reg_list.h"
#include "startup/globals.h"

namespace orvik {

frmSearchText::frmSearchText() : Form("frmSearchText", u"Поиск текста", 8070, 6150) {
  MakeSizable();
  cbPattern.PutInto(rmPattern);
  btFind.on_click = [this] { FindText(); };
  txMain.on_key_down = [this](forms::Key& key) {
    if (key.code != forms::kKeyEnter) return;
    key.code = 0;
    FindText();
  };
}

void frmSearchText::OnLoad() {
  Attempt([&] {
    SetCaption(Text(mdlMain::ProgramTitle) + u" -  Поиск текста " +
               mdlSupport::ShortenPath(mdlMain::CommandArgs));
  });
  // The patterns are those of the duplicate search. They are only read here.
  mdlMain::LoadPatternCombo(cbPattern, host::kLocalMachine, mdlMain::DoublesPatternKey);
  Show();
}

// What reaches across the form at design time does so at every width.
void frmSearchText::OnResize() {
  const int margin = lbMain.bounds().left;
  const int across = width() - forms::kFrameWidth - 2 * margin;
  const auto stretch = [](forms::Control& control, int width) {
    forms::Bounds bounds = control.bounds();
    bounds.width = width;
    control.Move(bounds);
  };
  forms::Bounds find = btFind.bounds();
  find.left = margin + across - find.width;
  btFind.Move(find);
  stretch(txMain, find.left - 90 - margin);
  stretch(rmPattern, across);
  stretch(cbPattern, across - 2 * cbPattern.bounds().left);
  const forms::Bounds list = lbMain.bounds();
  lbMain.Move({list.left, list.top, across, height() - forms::kFrameHeight - list.top - margin});
}

void frmSearchText::FindText() {
  if (Trim(cbPattern.text()).empty()) cbPattern.SetText(u"*.*");
  lbMain.Clear();
  lbMain.Add(u"Обработка");
  // The scan doesn't yield.
  lbMain.Repaint();
  // Copies: the user may type while the walk yields.
  const Text text = txMain.text();
  const Text masks = cbPattern.text();
  const KeyedCollection found = mdlMain::SearchTextInFiles(text, mdlMain::CommandArgs, masks);
  lbMain.Clear();
  for (std::size_t i = 1; i <= found.Count(); ++i) lbMain.Add(found.Item(i));
}

}  // namespace orvik
