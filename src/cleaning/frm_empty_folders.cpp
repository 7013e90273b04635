#include "cleaning/frm_empty_folders.h"

#include <cmath>

#include "base/checked.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "cleaning/delete_folder_tree.h"
#include "cleaning/empty_folders.h"
#include "fileengine/tree_scan.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "platform/registry_layer.h"
#include "startup/globals.h"

namespace orvik {

namespace {

constexpr const char16_t* kLimitName = u"EmptyFolderSize";

// In kilobytes; 0 when it isn't there.
double ReadLimit() {
  return NumericReading(
      mdlSupport::ReadRegValue(host::kLocalMachine, mdlMain::RegRootPath, kLimitName));
}

}  // namespace

frmEmptyFolders::frmEmptyFolders() : Form("frmEmptyFolders", u"Пустые папки", 9120, 5880) {
  lbMain.SetAnchor(forms::Control::Anchor::kStretch);
  udSize.SetHint(u"Изменить предел");
  clInfo.on_timer = [this] { ShowProgress(); };
  lbMain.on_double_click = [this] { OpenCurrent(); };
  lbMain.on_mouse_down = [this](forms::Mouse) { CountFiles(); };
  lbMain.on_key_up = [this](forms::Key& key) { TakeKey(key); };
  udSize.on_down = [this] { ChangeLimit(-1); };
  udSize.on_up = [this] { ChangeLimit(+1); };
}

void frmEmptyFolders::OnLoad() {
  frRights.SetCaption(mdlMain::ProgramTitle);
  ShowSizeLimit();
  SetCaption(u"Пустые папки директории " + mdlMain::CommandArgs);
  Show();
  forms::Yield();
  ScanEmptyFolders();
}

void frmEmptyFolders::OnUnload() { mdlMain::Shutdown(); }

void frmEmptyFolders::ScanEmptyFolders() {
  lbMain.Clear();
  lbMain.Add(u"Обработка ...");
  forms::Yield();
  clInfo.SetActive(true);
  std::vector<Text> found;
  // A limit that 32 bits don't hold fails, and the search with it.
  Attempt([&] {
    found = mdlMain::FindEmptyFolders(mdlMain::CommandArgs, RoundToInt32(ReadLimit() * 1024));
  });
  clInfo.SetActive(false);
  lbMain.Clear();
  for (const Text& folder : found) lbMain.Add(folder);
  frFilesCount.SetCaption(u"");
}

void frmEmptyFolders::ShowSizeLimit() {
  Attempt([&] {
    fr01.SetCaption(u"Пустыми считать папки не более " + Padded(RoundToInt32(ReadLimit()), 2) +
                    u" кб");
  });
}

// There is no stop below: from 0 down is 1.
void frmEmptyFolders::ChangeLimit(int step) {
  Attempt([&] {
    const std::int32_t limit = RoundToInt32(std::fabs(ReadLimit() + step));
    mdlSupport::WriteRegValue(host::kLocalMachine, mdlMain::RegRootPath, kLimitName,
                              Padded(limit, 1), 0);
  });
  ShowSizeLimit();
}

// The scan hands its folders over when it is done; until then those of the scan before, or none,
// are there.
void frmEmptyFolders::ShowProgress() {
  Attempt([&] {
    if (!mdlSupport::ScanFolders || mdlSupport::ScanFolders->empty()) throw Failure{};
    lbMain.SetItem(0, u"Обработка ... " + mdlSupport::ScanFolders->back());
  });
}

void frmEmptyFolders::OpenCurrent() {
  Attempt([&] {
    host::TheShell().Start(u"Explorer " + lbMain.Item(lbMain.index()), host::WindowState::kNormal);
  });
}

// The number runs one short from the second file on: 0 for none, 1 for one, 1 for two, 2 for three.
void frmEmptyFolders::CountFiles() {
  Attempt([&] {
    Text folder = lbMain.Item(lbMain.index());
    std::vector<Text> files;
    Attempt([&] { mdlSupport::WalkFiles(folder, u"*.*", files, kFalse); });
    std::int32_t n = mdlSupport::UpperBoundOrMinusOne(files);
    if (n < 1) ++n;
    frFilesCount.SetCaption(u"Файлов в выделенном каталоге" + SpacedDecimal(n));
  });
}

void frmEmptyFolders::TakeKey(const forms::Key& key) {
  if (key.code == forms::kKeyA && key.shift == forms::kCtrl) {
    SelectAll();
  } else if (key.code == forms::kKeyDelete) {
    DeleteSelected();
  } else if (key.code == forms::kKeyF5) {
    ScanEmptyFolders();
  }
}

void frmEmptyFolders::SelectAll() {
  for (int i = 0; i < lbMain.count(); ++i) lbMain.SetSelected(i, true);
}

void frmEmptyFolders::DeleteSelected() {
  const forms::Answer answer =
      forms::Front().Message(u"Действительно удалить выделенные каталоги", u"Казнь папок",
                             forms::Icon::kQuestion, forms::Buttons::kYesNo);
  if (answer != forms::Answer::kYes) return;
  for (int i = 0; i < lbMain.count(); ++i) {
    if (!lbMain.Selected(i)) continue;
    Attempt([&] { mdlSupport::DeleteFolderTree(lbMain.Item(i)); });
  }
  // A folder that went with its parent counts as removed too: only whether it is there is asked.
  for (int i = 0; i < lbMain.count(); ++i) {
    if (!lbMain.Selected(i)) continue;
    const Text folder = lbMain.Item(i);
    const bool gone = !host::Files().PathExists(folder);
    lbMain.SetItem(i, (gone ? u"Удален " : u"Нет доступа к ") + folder);
  }
}

}  // namespace orvik
