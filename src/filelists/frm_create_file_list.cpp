#include "filelists/frm_create_file_list.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "fileengine/walker.h"
#include "filelists/list_buffer.h"
#include "startup/globals.h"

namespace orvik {

frmCreateFileList::frmCreateFileList()
    : Form("frmCreateFileList", u"Создание файл-листа", 6690, 1305) {
  frMain.SetAnchor(forms::Control::Anchor::kStretch);
  pbMain.SetAnchor(forms::Control::Anchor::kStretch);
}

void frmCreateFileList::OnLoad() {
  Show();
  cdMain.SetFilter(u"Orvik FileList *.qlx|*.qlx");
  cdMain.ShowSave();
  if (!cdMain.filename().empty()) CreateList();
}

void frmCreateFileList::CreateList() {
  frMain.SetCaption(u"Обзор файлов каталога ...");
  std::vector<Text> list;
  Attempt([&] { mdlSupport::WalkFiles(mdlMain::CommandArgs, u"*.*", list, kFalse); });
  // The upper bound, one less than the count of files.
  const std::int32_t n = mdlSupport::UpperBoundOrMinusOne(list);
  frMain.SetCaption(u"Найдено " + SpacedDecimal(n) + u" файлов. Создание контрольных сумм");
  Attempt([&] { pbMain.SetMax(n); });
  for (std::int32_t i = 0; i <= n; ++i) {
    const Text& path = list[static_cast<std::size_t>(i)];
    mdlSupport::AddToListBuffer(
        path + u";" + Decimal(mdlSupport::GetFastCRC(path, 0)) + Text(kCrLf), 0);
    if (i % 10 != 1) continue;
    Attempt([&] { pbMain.SetValue(i); });
    pbMain.Repaint();
  }
  Attempt([&] { pbMain.SetValue(n); });
  mdlSupport::AppendToFile(mdlSupport::TakeListBuffer(kTrue, 0), cdMain.filename(), kFalse);
  frMain.SetCaption(u"Завершено.");
}

}  // namespace orvik
