// The job of frmCRC that compares two file lists.
#include "base/failure.h"
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "filelists/frm_crc.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik {

using mdlMain::CommandArgs;

namespace {

constexpr std::uint32_t kGreen = 32768;
constexpr std::uint32_t kRed = 255;

[[noreturn]] void Refuse(const Text& reason) {
  forms::Front().Message(reason, Text(mdlMain::ProgramTitle), forms::Icon::kInformation,
                         forms::Buttons::kOk);
  mdlMain::Shutdown();
}

// A field of a line; throws Failure when the line hasn't so many.
TextView Field(const std::vector<TextView>& fields, std::size_t number) {
  if (number >= fields.size()) throw Failure{};
  return fields[number];
}

}  // namespace

void frmCRC::ReloadFileListComparation() {
  cdMain.SetFilter(u"Файл-Лист Orvik *.qlx|*.qlx");
  cdMain.ShowOpen();
  const Text chosen = cdMain.filename();
  if (!host::Files().PathExists(chosen)) Refuse(u"Папка не определена");
  if (lvMain.column_count() < 3) {
    lvMain.AddColumn(chosen, 2000);
    lvMain.SetColumnWidth(1, 4750);
  }
  lvMain.SetColumnText(1, u"Файл из Файл-Листа");
  Attempt([&] { lvMain.SetColumnText(2, mdlSupport::ShortenPath(CommandArgs)); });
  Text name;
  // The chosen list comes first and fills the column whose head names the other one.
  ReadList(chosen, name);
  if (chosen != CommandArgs) ReadList(CommandArgs, name);
}

void frmCRC::ReadList(const Text& path, Text& name) {
  const Text content = mdlSupport::ReadWholeFile(path);
  const std::vector<TextView> lines = Split(content, kCrLf);
  if (lines.empty()) Refuse(u"Файл-Лист " + path + u" пуст");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    TakeLine(Split(lines[i], u";"), name);
    if (i % 50 != 0) lvMain.Repaint();
  }
}

// An empty line has no fields: the name stays that of the line before, whose row is looked at once
// more, and a row with one checksum passes for equal. So the last file of a list turns green. A row
// without a path doesn't count as one that is there.
void frmCRC::TakeLine(const std::vector<TextView>& fields, Text& name) {
  Attempt([&] { name = mdlSupport::GetFileName(Field(fields, 0)); });
  const Text key = u"k" + name;
  int row = lvMain.Find(key);
  if (row != 0 && !lvMain.At(row).text.empty()) {
    Attempt([&] { lvMain.AddSub(row, Field(fields, 1), u"d" + name); });
    if (Passes([&] { return lvMain.Sub(row, 1) == lvMain.Sub(row, 2); })) {
      Attempt([&] { lvMain.SetColor(row, kGreen); });
    }
    return;
  }
  Attempt([&] {
    lvMain.Add(Field(fields, 0), key);
    row = lvMain.count();
  });
  Attempt([&] { lvMain.AddSub(row, Field(fields, 1), u"s" + name); });
  Attempt([&] { lvMain.SetColor(row, kRed); });
}

}  // namespace orvik
