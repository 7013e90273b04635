#include "duplicates/frm_doubles.h"

#include "base/failure.h"
#include "duplicates/frm_sources.h"
#include "fileengine/paths.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "host/registry.h"
#include "platform/reg_list.h"
#include "startup/globals.h"

namespace orvik {

frmDoubles::frmDoubles() : Form("frmDoubles", u"Дубликаты", 9570, 7005) {
  // The buttons take all of the width.
  MakeSizable(width());
  cbPattern.PutInto(rmPattern);
  WireEvents();
}

void frmDoubles::WireEvents() {
  cbPattern.on_key_down = [this](forms::Key& key) { TakePatternKey(key); };
  btFind.on_click = [this] { FindDoubles(); };
  btSources.on_click = [this] {
    auto& sources = forms::The<frmSources>();
    sources.SetOwner(*this);
    sources.Show();
  };
  btKill.on_click = [this] { KillMarked(); };
  tvMain.on_key_down = [this](forms::Key& key) {
    if (key.code == forms::kKeyDelete) KillSelected();
  };
  tvMain.on_mouse_up = [this](forms::Mouse mouse) { TakeMouse(mouse); };
  mnSelByMask[0].on_click = [this] { MarkByMask(true); };
  mnSelByMask[1].on_click = [this] { MarkByMask(false); };
  mnReSel.on_click = [this] { Invert(); };
  mnUnselect.on_click = [this] { UnmarkAll(); };
}

void frmDoubles::OnLoad() {
  Attempt([&] {
    SetCaption(Text(mdlMain::ProgramTitle) + u" -  Дубликаты файлов каталога " +
               mdlSupport::ShortenPath(mdlMain::CommandArgs));
  });
  mdlMain::LoadPatternCombo(cbPattern, host::kLocalMachine, mdlMain::DoublesPatternKey);
  Show();
  // Enter in the pattern still searches, for the further folders.
  if (mdlMain::CommandArgs.empty()) btFind.SetEnabled(false);
}

void frmDoubles::OnUnload() { mdlMain::Shutdown(); }

void frmDoubles::OnResize() {
  const int top = tvMain.bounds().top;
  tvMain.Move({0, top, width() - forms::kFrameWidth, height() - forms::kFrameHeight - top});
}

void frmDoubles::TakePatternKey(forms::Key& key) {
  if (key.code == forms::kKeyEnter) {
    key.code = 0;
    FindDoubles();
  } else {
    mdlMain::RemovePatternByKey(cbPattern, key);
  }
}

}  // namespace orvik
