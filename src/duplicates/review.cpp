// What the user does with the tree after a search. A node that was removed keeps its place with
// another text, which is no path, so that nothing more happens to it.
#include "base/failure.h"
#include "base/numbers.h"
#include "duplicates/frm_doubles.h"
#include "duplicates/frm_input_box.h"
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "platform/associations.h"
#include "startup/globals.h"

namespace orvik {

namespace {

constexpr int kYieldEvery = 64;

bool Exists(const Text& path) { return host::Files().PathExists(path); }

// Sends a node's file to the Recycle Bin. True when the file was there and has gone.
bool Recycle(forms::TreeView& tree, int position) {
  const Text path = tree.At(position).text;
  if (!Exists(path)) return false;
  mdlSupport::RecycleFile(path);
  if (Exists(path)) return false;
  tree.SetText(position, u"Удален " + path);
  return true;
}

}  // namespace

void frmDoubles::KillMarked() {
  const int n = tvMain.count();
  if (n == 0) return;
  Int32 deleted;
  Int32 bytes;
  std::int32_t length = 0;
  for (int i = 1; i <= n; ++i) {
    Attempt([&] {
      if (!tvMain.At(i).checked) return;
      // A length that can't be read counts as the one before.
      Attempt([&] { length = mdlSupport::FileLength(tvMain.At(i).text); });
      if (!Recycle(tvMain, i)) return;
      Attempt([&] { bytes += length; });
      ++deleted;
    });
  }
  Attempt([&] {
    SetCaption(Text(mdlMain::ProgramTitle) + u" -  Дубликаты файлов каталога " +
               mdlSupport::ShortenPath(mdlMain::CommandArgs) + u" - " + SpacedDecimal(deleted) +
               u" удалено. Их размер" + SpacedDecimal(bytes / 1024) + u" Kb");
  });
}

void frmDoubles::KillSelected() {
  Attempt([&] { Recycle(tvMain, tvMain.selected()); });
}

const Text& frmDoubles::SelectedText() const { return tvMain.At(tvMain.selected()).text; }

// All of it acts on the selected node, wherever the mouse is.
void frmDoubles::TakeMouse(forms::Mouse mouse) {
  if (mouse.shift != forms::kShift) {
    if (mouse.button == forms::kRightButton) PopUp(mnMain);
    return;
  }
  Attempt([&] {
    const Text path = SelectedText();
    if (mouse.button == forms::kLeftButton) mdlSupport::OpenWithAssociation(path);
    if (mouse.button == forms::kRightButton) {
      host::TheShell().Start(u"Explorer " + Text(mdlSupport::GetFolderPath(path)),
                             host::WindowState::kNormal);
    }
    tvMain.SetTooltip(SpacedDecimal(mdlSupport::GetFileCRC(path)));
  });
}

void frmDoubles::MarkByMask(bool on) {
  Text initial;
  Attempt([&] { initial = SelectedText(); });
  const Text question = Text(u"Введите маску для ") + (on ? u"выделения..." : u"снятия выделения");
  const Text pattern = u"*" + mdlMain::AskInput(question, initial) + u"*";
  const int n = tvMain.count();
  for (int i = 1; i <= n; ++i) {
    // A malformed pattern fits every node.
    if (Passes([&] { return mdlSupport::Like(tvMain.At(i).text, pattern); })) {
      Attempt([&] { tvMain.SetChecked(i, on); });
    }
    if (i % kYieldEvery == 0) forms::Yield();
  }
}

void frmDoubles::Invert() {
  const int n = tvMain.count();
  for (int i = 1; i <= n; ++i) {
    Attempt([&] { tvMain.SetChecked(i, !tvMain.At(i).checked); });
    if (i % kYieldEvery == 0) forms::Yield();
  }
}

void frmDoubles::UnmarkAll() {
  for (int i = 1; i <= tvMain.count(); ++i) tvMain.SetChecked(i, false);
}

}  // namespace orvik
