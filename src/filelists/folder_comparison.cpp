// The two jobs of frmCRC that look at folders.
#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "fileengine/paths.h"
#include "fileengine/walker.h"
#include "filelists/cells.h"
#include "filelists/frm_crc.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik {

using mdlMain::CommandArgs;
using mdlSupport::GetFastCRC;
using mdlSupport::UpperBoundOrMinusOne;

namespace {

constexpr std::uint32_t kGreen = 32768;

std::vector<Text> Walk(Text& folder) {
  std::vector<Text> files;
  Attempt([&] { mdlSupport::WalkFiles(folder, u"*.*", files, kFalse); });
  return files;
}

// A length that can't be read is 0.
std::int32_t LengthOf(const Text& path) {
  std::int32_t length = 0;
  Attempt([&] { length = mdlSupport::FileLength(path); });
  return length;
}

Text KeyOf(const Text& path) { return u"k" + Text(mdlSupport::GetFileName(path)); }

}  // namespace

void frmCRC::ShowWork() {
  lvMain.Clear();
  lvMain.Add(u"Обработка ...");
}

void frmCRC::ReloadFolderChecksums() {
  ShowWork();
  const std::vector<Text> files = Walk(CommandArgs);
  lvMain.Clear();
  for (std::int32_t i = 0; i <= UpperBoundOrMinusOne(files); ++i) {
    const Text& path = files[static_cast<std::size_t>(i)];
    lvMain.Add(path);
    Attempt(
        [&] { lvMain.AddSub(i + 1, mdlMain::OneFolderCell(GetFastCRC(path, 0), LengthOf(path))); });
    if (i % 10 == 0) forms::Yield();
  }
}

void frmCRC::ReloadComparedFolders(Text second_folder) {
  if (!host::Files().PathExists(CommandArgs) || !host::Files().PathExists(second_folder)) {
    mdlMain::Shutdown();
  }
  lvMain.Clear();
  if (lvMain.column_count() < 3) lvMain.AddColumn(u"CRC (Fast method)", 2000);
  lvMain.SetColumnWidth(1, 5000);
  ShowWork();
  const std::vector<Text> first = Walk(CommandArgs);
  const std::vector<Text> second = Walk(second_folder);
  lvMain.Clear();
  AddFirstFolder(first);
  AddSecondFolder(second, first);
  if (lvMain.count() > 24) {
    lvMain.SetColumnWidth(1, 5000);
    lvMain.SetColumnWidth(2, 1900);
    lvMain.SetColumnWidth(3, 1900);
  }
  sbMain.SetText(u"Обработано" +
                 SpacedDecimal(UpperBoundOrMinusOne(first) + UpperBoundOrMinusOne(second) + 2) +
                 u" файлов");
}

// A name that has a row already gets none, and from there on the cells miss their rows by one:
// those behind have no second column.
void frmCRC::AddFirstFolder(const std::vector<Text>& files) {
  for (std::int32_t i = 0; i <= UpperBoundOrMinusOne(files); ++i) {
    const Text& path = files[static_cast<std::size_t>(i)];
    const Text key = KeyOf(path);
    if (lvMain.Find(key) == 0) lvMain.Add(path, key);
    const Text cell = mdlMain::TwoFolderCell(GetFastCRC(path, 0), LengthOf(path));
    if (i < lvMain.count()) lvMain.AddSub(i + 1, cell);
  }
}

void frmCRC::AddSecondFolder(const std::vector<Text>& files, const std::vector<Text>& first_files) {
  for (std::size_t j = 0; j < files.size(); ++j) {
    const Text& path = files[j];
    int row = lvMain.Find(KeyOf(path));
    const bool paired = row != 0 && !lvMain.At(row).text.empty();
    if (!paired) {
      lvMain.Add(path);
      row = lvMain.count();
      lvMain.AddSub(row, u"");
    }
    // The length is that of the first folder's file at the same place, whatever file this is; where
    // the first folder has none left, there is no cell.
    if (j < first_files.size()) {
      lvMain.AddSub(row, mdlMain::TwoFolderCell(GetFastCRC(path, 0), LengthOf(first_files[j])));
    }
    // A row that lacks one of the two passes for equal.
    const auto& cells = lvMain.At(row).sub;
    if (paired && (cells.size() < 2 || cells[0].text == cells[1].text)) {
      lvMain.SetColor(row, kGreen);
    }
  }
}

}  // namespace orvik
