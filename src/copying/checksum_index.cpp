#include "copying/checksum_index.h"

#include "base/failure.h"
#include "fileengine/file_operations.h"

namespace orvik::mdlMain {

void ReadChecksumList(const Text& path, KeyedCollection& index) {
  const Text content = mdlSupport::ReadWholeFile(path);
  const auto lines = Split(content, kCrLf);
  for (const TextView line : lines) {
    const auto fields = Split(line, u";");
    const bool has_checksum = Passes([&] {
      if (fields.size() < 2) throw Failure{};
      return !fields[1].empty();
    });
    if (!has_checksum) continue;
    // The key is the same for every line, so every line behind the first addition, and every line
    // of a list without a second one, adds nothing.
    Attempt([&] {
      if (lines.size() < 2) throw Failure{};
      index.Add(Text(lines[0]), u"k" + Text(lines[1]));
    });
    return;
  }
}

}  // namespace orvik::mdlMain
