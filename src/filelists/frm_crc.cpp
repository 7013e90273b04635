#include "filelists/frm_crc.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "fileengine/paths.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik {

using mdlMain::CommandArgs;
using mdlSupport::ShortenPath;

frmCRC::frmCRC() : Form("frmCRC", u"Контрольные суммы", 9600, 5925, Place::kSystem) {
  MakeSizable();
  lvMain.on_click = [this] { ShowLength(); };
  lvMain.on_key_down = [this](forms::Key& key) { SelectDefaultRows(key); };
}

void frmCRC::OnLoad() {
  const Text title(mdlMain::ProgramTitle);
  if (mdlMain::CompareWithFolder != kFalse) {
    const Text second = mdlSupport::BrowseFolder(*this);
    Attempt([&] { SetCaption(title + u" -  Сравнение с каталогом " + ShortenPath(second)); });
    Show();
    ReloadComparedFolders(second);
  } else if (mdlMain::CompareFileLists != kFalse) {
    SetCaption(title + u" -  Сравнение файлов из Файл-Листов");
    ReloadFileListComparation();
  } else {
    Attempt([&] {
      SetCaption(title + u" -  Контрольные суммы файлов каталога " + ShortenPath(CommandArgs));
    });
    Show();
    ReloadFolderChecksums();
  }
}

void frmCRC::OnUnload() { mdlMain::Shutdown(); }

void frmCRC::OnResize() {
  constexpr int kRightOfList = 105;
  constexpr int kBelowList = 480;
  constexpr int kOtherColumns = 4600;
  const int bar = sbMain.bounds().height;
  const int list_height = height() - kBelowList - bar;
  lvMain.Move({0, 0, width() - kRightOfList, list_height});
  sbMain.Move({0, list_height, width() - kRightOfList, bar});
  lvMain.SetColumnWidth(1, width() - kOtherColumns);
}

// A click on a row tells the length of its file.
void frmCRC::ShowLength() {
  Attempt([&] {
    const Text& path = lvMain.At(lvMain.current()).text;
    sbMain.SetText(path + u" -" + SpacedDecimal(mdlSupport::FileLength(path)) + u" Байт");
  });
}

// Ctrl+A. The positions run from 0 to one less than the count, so the last row stays out.
void frmCRC::SelectDefaultRows(const forms::Key& key) {
  if (key.code != forms::kKeyA || key.shift != forms::kCtrl) return;
  for (int position = 0; position < lvMain.count(); ++position) {
    if (Passes([&] { return lvMain.At(position).color == forms::kWindowTextColor; })) {
      Attempt([&] { lvMain.SetSelected(position, true); });
    }
  }
}

}  // namespace orvik
