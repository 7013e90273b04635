#include "cleaning/delete_folder_tree.h"

#include <vector>

#include "base/checked.h"
#include "base/failure.h"
#include "fileengine/tree_scan.h"
#include "host/host.h"

namespace orvik::mdlSupport {

void DeleteFolderTree(Text path) {
  if (path.ends_with(u'\\')) path.pop_back();
  // The listing is complete before anything goes.
  std::vector<Text> entries = ListFolder(path, u"*.*");
  std::erase_if(entries, [](const Text& name) { return name == u"." || name == u".."; });
  // They are counted in 16 bits: a folder of more entries is left alone.
  const auto count = Narrowed<std::int16_t>(static_cast<std::int64_t>(entries.size()));
  for (std::int16_t i = 0; i < count; ++i) {
    const Text entry = path + u"\\" + entries[static_cast<std::size_t>(i)];
    const auto attributes = host::Files().Attributes(entry);
    if (!attributes) throw Failure{};
    if ((*attributes & host::attribute::kFolder) != 0) {
      DeleteFolderTree(entry);
    } else {
      host::Files().SetAttributes(entry, 0);
      host::Files().DeleteFile(entry);
    }
  }
  if (path.size() > 2 && !host::Files().RemoveFolder(path)) throw Failure{};
}

}  // namespace orvik::mdlSupport
