#include "cleaning/empty_folders.h"

#include "fileengine/tree_scan.h"
#include "forms/front_end.h"

namespace orvik::mdlMain {

std::vector<Text> FindEmptyFolders(const Text& folder, std::int32_t limit) {
  if (folder.empty()) {
    mdlSupport::ScanAllDrives(u"");
  } else {
    mdlSupport::ScanFolderTree(folder, u"", kFalse);
  }
  std::vector<Text> found;
  if (!mdlSupport::ScanFolders || mdlSupport::ScanFolders->empty()) return found;
  // A click while this yields may begin another scan.
  const std::vector<Text> folders = *mdlSupport::ScanFolders;
  mdlSupport::TreeSizes sizes(folders.front());
  for (std::size_t i = 0; i < folders.size(); ++i) {
    if (sizes.Of(folders[i]) <= limit) found.push_back(folders[i]);
    if ((i + 1) % 100 == 0) forms::Yield();
  }
  return found;
}

}  // namespace orvik::mdlMain
