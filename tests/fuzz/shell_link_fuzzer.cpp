// Any bytes as a shortcut: reading never fails, its texts are no longer than the bytes can hold,
// and what is written from it reads as the same again.
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string_view>

#include "host/shell_link/shortcut_link.h"
#include "host/shortcut_fields.h"

namespace {

using namespace orvik;
using namespace orvik::host;

void Check(bool holds) {
  if (!holds) std::abort();
}

// The suffix counts for both paths, and a missing backslash is put in.
void CheckLengths(const ShellLink& link, std::size_t bytes) {
  for (const Text* text : {&link.item_path, &link.local_path, &link.network_path,
                           &link.variable_path, &link.description, &link.relative_path,
                           &link.working_folder, &link.arguments, &link.icon_path}) {
    Check(text->size() <= 2 * bytes + 1);
    Check(text->find(u'\0') == Text::npos);
  }
}

// Through a file and back.
void CheckWriting(const ShellLink& link, const CodePage& page) {
  const auto written = WriteShellLink(link, page);
  if (!written) return;
  const auto read = ReadShellLink(*written, page);
  Check(read && *read == link);
}

// Through the program's own view of it and back.
void CheckShortcut(const ShellLink& link, const CodePage& page) {
  const Shortcut shortcut = ShortcutOf(link, link.variable_path);
  // A full path has no empty steps.
  if (!IsFitToWrite(shortcut) || shortcut.target.find(u"\\\\", 1) != Text::npos) return;
  const auto written = WriteShellLink(LinkOf(shortcut, shortcut.target, {}), page);
  if (!written) return;
  const auto read = ReadShellLink(*written, page);
  Check(read.has_value());
  const Shortcut again = ShortcutOf(*read, read->variable_path);
  const IconLocation icon = ParseIconLocation(shortcut.icon_location);
  Check(again.icon_location == IconLocationText(icon.path, icon.index));
  Check(again.target == shortcut.target && again.arguments == shortcut.arguments &&
        again.description == shortcut.description &&
        again.working_folder == shortcut.working_folder &&
        again.window_style == shortcut.window_style);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const CodePage& page = CodePage::Numbered(1251);
  const auto link = ReadShellLink(bytes, page);
  if (!link) return 0;
  CheckLengths(*link, size);
  CheckWriting(*link, page);
  CheckShortcut(*link, page);
  return 0;
}
