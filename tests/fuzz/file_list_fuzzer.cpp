// Any two files as file lists: the comparison goes through with a row for each name, and the copy
// engine takes one entry at most.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "copying/checksum_index.h"
#include "fileengine/paths.h"
#include "filelists/frm_crc.h"
#include "forms/instance.h"
#include "startup/globals.h"
#include "startup/main.h"
#include "unit/support/fake_host.h"
#include "unit/support/test_front_end.h"

namespace {

using namespace orvik;

constexpr std::uint32_t kGreen = 32768;
constexpr std::uint32_t kRed = 255;

void Check(bool holds) {
  if (!holds) std::abort();
}

Text AsText(const std::string& bytes) {
  const CodePage& page = CodePage::Numbered(1251);
  return page.Decode(bytes);
}

// A line whose first field names a file has a row of that name.
void CheckLines(const forms::ListView& list, const Text& content) {
  for (const TextView line : Split(content, kCrLf)) {
    const Text path(line.substr(0, line.find(u';')));
    if (path.empty() || path.ends_with(u'\\')) continue;
    Check(list.Find(u"k" + Text(mdlSupport::GetFileName(path))) != 0);
  }
}

void CheckRows(const forms::ListView& list, std::size_t lines) {
  Check(static_cast<std::size_t>(list.count()) <= lines);
  for (int position = 1; position <= list.count(); ++position) {
    const forms::ListView::Row& row = list.At(position);
    Check(row.color == kGreen || row.color == kRed);
    Check(row.sub.size() <= 2);
    Check(row.key.starts_with(u'k') && list.Find(row.key) == position);
    const bool equal = row.sub.size() == 2 && row.sub[0].text == row.sub[1].text;
    Check(!equal || row.color == kGreen);
  }
}

void Compare(const std::string& chosen, const std::string& own) {
  test::FakeHost host;
  test::TestFrontEnd front(&host.system);
  forms::ForgetForms();
  mdlMain::CompareFileLists = kFalse;
  host.files.AddFile(u"T:\\chosen.qlx", chosen);
  host.files.AddFile(u"T:\\own.qlx", own);
  front.file_answers.push_back(u"T:\\chosen.qlx");
  const auto end = test::Ending([] { mdlMain::Main(u"/CML T:\\own.qlx"); });
  Check(end.has_value() == (chosen.empty() || own.empty()));
  if (end) {
    Check(!front.events.empty() && front.events.back().starts_with("message "));
  } else {
    const forms::ListView& list = forms::The<frmCRC>().lvMain;
    const Text texts[] = {AsText(chosen), AsText(own)};
    CheckRows(list, Split(texts[0], kCrLf).size() + Split(texts[1], kCrLf).size());
    for (const Text& text : texts) CheckLines(list, text);
  }
  forms::ForgetForms();
}

void ReadByTheCopyEngine(const std::string& content) {
  test::FakeHost host;
  host.files.AddFile(u"T:\\list.qlx", content);
  KeyedCollection index;
  mdlMain::ReadChecksumList(u"T:\\list.qlx", index);
  if (index.Count() == 0) return;
  Check(index.Count() == 1);
  const Text text = AsText(content);
  const auto lines = Split(text, kCrLf);
  Check(lines.size() >= 2);
  const Text* const item = index.Find(u"k" + Text(lines[1]));
  Check(item != nullptr && *item == lines[0]);
}

}  // namespace

// The first two bytes tell how much of the rest is the chosen list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string rest(reinterpret_cast<const char*>(data) + 2, size - 2);
  const std::size_t split = (data[0] * 256U + data[1]) % (rest.size() + 1);
  Compare(rest.substr(0, split), rest.substr(split));
  ReadByTheCopyEngine(rest);
  return 0;
}
