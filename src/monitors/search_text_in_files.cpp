// The search itself: whole files, one at a time in memory.
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/failure.h"
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "fileengine/walker.h"
#include "host/host.h"
#include "monitors/frm_search_text.h"
#include "monitors/text_finder.h"

namespace orvik::mdlMain {

namespace {

// Files of this length and longer aren't looked at.
constexpr std::int32_t kTooLong = 0x100000;

// Whether a file that can be opened for reading holds the text. Nothing for one that can't.
std::optional<bool> HeldByReadable(const Text& path, const TextFinder& finder,
                                   std::vector<char>& buffer) {
  const auto file = host::Files().Open(path, host::OpenMode::kRead);
  const auto bytes = file ? file->Length() : std::nullopt;
  if (!bytes) return std::nullopt;
  // A length of 2 GiB and more is negative: such a file reads as empty.
  const std::int32_t length = mdlSupport::ReportedLength(*bytes);
  if (length <= 0 || length >= kTooLong) return false;
  const std::span content = std::span(buffer).first(static_cast<std::size_t>(length));
  std::size_t read = 0;
  while (read < content.size()) {
    const auto count = file->ReadAt(static_cast<std::int64_t>(read), content.subspan(read));
    if (!count || *count == 0) break;
    read += *count;
  }
  // What can't be read counts as blanks.
  std::fill(content.begin() + static_cast<std::ptrdiff_t>(read), content.end(), ' ');
  return finder.FoundIn(content);
}

// The same for any file, by the common way of reading: one that another program holds is as many
// blanks as it has bytes, one that has vanished is made anew, empty.
bool HeldByAny(const Text& path, const TextFinder& finder) {
  // Where the length can't be read the file is looked at whatever its size.
  if (!Passes([&] { return mdlSupport::FileLength(path) < kTooLong; })) return false;
  return finder.FoundIn(host::TheSystem().AnsiPage().Encode(mdlSupport::ReadWholeFile(path)));
}

}  // namespace

KeyedCollection SearchTextInFiles(const Text& text, const Text& folder, const Text& masks) {
  KeyedCollection found;
  std::vector<Text> files;
  Attempt([&] {
    Text root = folder;
    mdlSupport::WalkFiles(root, masks, files, kFalse);
  });
  const TextFinder finder(text, host::TheSystem().AnsiPage());
  std::vector<char> buffer(kTooLong);
  for (const Text& path : files) {
    const auto held = HeldByReadable(path, finder, buffer);
    if (held ? !*held : !HeldByAny(path, finder)) continue;
    // A path that two masks gave comes once.
    Attempt([&] { found.Add(path, u"k" + path); });
  }
  return found;
}

}  // namespace orvik::mdlMain
