#include "duplicates/frm_sources.h"

#include "base/failure.h"
#include "host/host.h"
#include "platform/reg_list.h"
#include "platform/registry_layer.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik {

using mdlMain::DoublesExtraFolders;
using mdlMain::DoublesSourcesKey;

frmSources::frmSources() : Form("frmSources", u"Искать в каталогах", 6600, 4470) {
  lbSources.SetAnchor(forms::Control::Anchor::kStretch);
  btAddSource.on_click = [this] { AddSource(); };
  btRemoveSource.on_click = [this] {
    Attempt([&] { lbSources.Remove(lbSources.index()); });
    StoreSources();
  };
}

void frmSources::OnLoad() {
  mdlMain::LoadDoublesSources();
  ShowSources();
}

void frmSources::OnUnload() {
  DoublesExtraFolders = {};
  for (int i = 0; i < lbSources.count(); ++i) {
    if (lbSources.Checked(i)) DoublesExtraFolders.Add(lbSources.Item(i));
  }
}

void frmSources::ShowSources() {
  lbSources.Clear();
  for (std::size_t i = 1; i <= DoublesExtraFolders.Count(); ++i) {
    lbSources.Add(DoublesExtraFolders.Item(i));
  }
}

void frmSources::StoreSources() {
  DoublesExtraFolders = {};
  for (int i = 0; i < lbSources.count(); ++i) DoublesExtraFolders.Add(lbSources.Item(i));
  mdlRegList::SaveRegList(host::kLocalMachine, DoublesSourcesKey, DoublesExtraFolders,
                          DoublesExtraFolders);
}

void frmSources::AddSource() {
  const Text folder = mdlSupport::BrowseFolder(*this);
  if (host::Files().PathExists(folder) &&
      mdlSupport::ReadRegValue(0, DoublesSourcesKey, folder).empty()) {
    lbSources.Add(folder);
  }
  // Also after a cancel.
  StoreSources();
}

namespace mdlMain {

void LoadDoublesSources() {
  KeyedCollection by_folder;
  mdlRegList::LoadRegList(host::kLocalMachine, DoublesSourcesKey, DoublesExtraFolders, by_folder);
}

}  // namespace mdlMain

}  // namespace orvik
