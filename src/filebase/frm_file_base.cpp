#include "filebase/frm_file_base.h"

#include "base/checked.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "cleaning/wait.h"
#include "filebase/build_file_base.h"
#include "forms/instance.h"
#include "host/host.h"
#include "platform/reg_list.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik {

frmFileBase::frmFileBase() : Form("frmFileBase", u"Формирование файловой базы", 7200, 6225) {
  btCreate.MakeDefault();
  pbAddSource.SetHint(u"Добавить папку");
  udMain.SetHint(u"Изменить количество");
  pbDest.SetHint(u"Выбрать расположение");
  WireEvents();
}

void frmFileBase::WireEvents() {
  pbAddSource.on_click = [this] {
    const Text folder = mdlSupport::BrowseFolder(*this);
    if (host::Files().PathExists(folder)) lbSources.Add(folder);
  };
  pbDest.on_click = [this] {
    const Text folder = mdlSupport::BrowseFolder(*this);
    if (host::Files().PathExists(folder)) txBaseLocation.SetText(folder);
  };
  // Any key takes the current folder off; the last one stays.
  lbSources.on_key_up = [this](forms::Key&) {
    if (lbSources.count() >= 2) Attempt([&] { lbSources.Remove(lbSources.index()); });
  };
  opSaveFileNames.on_click = [this] { txFileFormat.SetEnabled(!opSaveFileNames.checked()); };
  cbPattern.on_key_down = [this](forms::Key& key) {
    if (key.code == forms::kKeyEnter) key.code = 0;
    mdlMain::RemovePatternByKey(cbPattern, key);
  };
  udMain.on_down = [this] { ChangeCount(-1); };
  udMain.on_up = [this] { ChangeCount(+1); };
  btCreate.on_click = [this] { Create(); };
}

void frmFileBase::OnLoad() {
  frRights.SetCaption(mdlMain::ProgramTitle);
  lbSources.Add(mdlMain::CommandArgs);
  txBaseLocation.SetText(mdlMain::CommandArgs);
  mdlMain::LoadPatternCombo(cbPattern, host::kLocalMachine, mdlMain::RecentMaskKey);
  Show();
}

void frmFileBase::OnUnload() { mdlMain::Shutdown(); }

// There is no stop: 0 and negative numbers are reached.
void frmFileBase::ChangeCount(int step) {
  Attempt([&] {
    txFileCount.SetText(Padded(static_cast<std::int64_t>(RoundToInt32(
                                   NumericReading(txFileCount.text()) + static_cast<double>(step))),
                               1));
  });
}

void frmFileBase::Create() {
  mdlMain::SavePatternCombo(cbPattern, host::kLocalMachine, mdlMain::DoublesPatternKey);
  std::vector<Text> sources;
  sources.reserve(static_cast<std::size_t>(lbSources.count()));
  for (int i = 0; i < lbSources.count(); ++i) sources.push_back(lbSources.Item(i));
  // A capacity that 32 bits don't hold fails, and the job with it.
  Attempt([&] {
    const std::int32_t capacity = RoundToInt32(NumericReading(txFileCount.text()));
    mdlMain::BuildFileBase(sources, txBaseLocation.text(), capacity, txDirFormat.text(),
                           txFileFormat.text(), cbPattern.text(), ToFlag(opMoveFiles.checked()),
                           opSaveFileNames.checked() ? u"True" : u"False");
  });
  mdlSupport::WaitWithMessages(1500);
  mdlMain::Shutdown();
}

}  // namespace orvik
