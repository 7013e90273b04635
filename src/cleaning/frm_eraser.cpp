#include "cleaning/frm_eraser.h"

#include "base/checked.h"
#include "base/failure.h"
#include "cleaning/delete_folder_tree.h"
#include "cleaning/wait.h"
#include "fileengine/file_operations.h"
#include "fileengine/tree_scan.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik {

using mdlMain::CommandArgs;

namespace {

bool Exists(const Text& path) { return host::Files().PathExists(path); }

}  // namespace

frmEraser::frmEraser() : Form("frmEraser", u"Удалятор", 9120, 5505) {
  lbMain.SetAnchor(forms::Control::Anchor::kStretch);
}

void frmEraser::OnLoad() {
  const forms::Answer answer = forms::Front().Message(
      u"Действительно использовать Расширенное удаление", Text(mdlMain::ProgramTitle),
      forms::Icon::kCritical, forms::Buttons::kYesNo);
  if (answer == forms::Answer::kNo) {
    Unload();
    return;
  }
  SetCaption(Text(mdlMain::ProgramTitle) + u" - Расширенное удаление ");
  Show();
  EraseTarget();
}

void frmEraser::OnUnload() { mdlMain::Shutdown(); }

void frmEraser::EraseTarget() {
  if (Exists(CommandArgs)) {
    lbMain.Clear();
    if (mdlMain::EraseOneFile != kFalse) {
      EraseFile();
    } else {
      EraseFolder();
    }
    lbMain.Clear();
    lbMain.Add(u"Объекты удалены");
  }
  mdlSupport::WaitWithMessages(5000);
  mdlMain::Shutdown();
}

void frmEraser::EraseFile() {
  lbMain.Add(CommandArgs);
  while (Exists(CommandArgs)) {
    mdlSupport::DeleteOneFile(CommandArgs);
    mdlSupport::WaitWithMessages(1000);  // also behind an attempt that worked
  }
}

void frmEraser::EraseFolder() {
  lbMain.Add(u"Обзор папки");
  lbMain.Repaint();
  mdlSupport::ScanFolderTree(CommandArgs, u"", kFalse);
  lbMain.Clear();
  const auto files = static_cast<std::int32_t>(mdlSupport::ScanFiles->size());
  ListTargets();
  EraseListedFiles(files);
  EraseListedFolders(files);
}

void frmEraser::ListTargets() {
  for (const auto* targets : {&mdlSupport::ScanFiles, &mdlSupport::ScanFolders}) {
    const std::vector<Text> paths = **targets;
    for (std::size_t i = 0; i < paths.size(); ++i) {
      lbMain.Add(paths[i]);
      if (i % 32 == 0) forms::Yield();
    }
  }
}

// Tries one file after the other, round and round, until each was seen to go. Nothing yields but a
// success, so that a file is deleted in the moment that it comes free. The round runs one entry
// past the files: the root of the tree loses its attributes, and nothing else.
void frmEraser::EraseListedFiles(std::int32_t files) {
  Int16 i = 0;
  for (std::int32_t left = files; left > 0;) {
    Attempt([&] {
      const Text path = lbMain.Item(i);
      if (!Exists(path)) return;
      mdlSupport::DeleteOneFile(path);
      if (Exists(path)) return;
      lbMain.SetItem(i, u"Удален " + path);
      --left;
      forms::Yield();
    });
    Attempt([&] { ++i; });
    if (i > files) i = 0;
  }
}

// The same for the folders. The first takes all others with it, and those are never counted.
void frmEraser::EraseListedFolders(std::int32_t files) {
  Int16 i = 0;
  Attempt([&] { i += files; });
  for (std::int32_t done = files; done < lbMain.count();) {
    Attempt([&] {
      const Text path = lbMain.Item(i);
      if (!Exists(path)) return;
      Attempt([&] { mdlSupport::DeleteFolderTree(path); });
      if (Exists(path)) return;
      lbMain.SetItem(i, u"Удалена " + path);
      ++done;
      forms::Yield();
    });
    Attempt([&] { ++i; });
    if (i > lbMain.count()) {
      i = 0;
      Attempt([&] { i += files; });
    }
  }
}

}  // namespace orvik
