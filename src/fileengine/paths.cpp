#include "fileengine/paths.h"

#include "base/failure.h"
#include "fileengine/pattern.h"
#include "host/host.h"

namespace orvik::mdlSupport {

namespace {
constexpr char16_t kBackslash = u'\\';
}

TextView GetFileName(TextView path) {
  // The search for separators stops at the last character, so a backslash there closes the name.
  if (path.size() < 2) return path;
  const std::size_t last = path.rfind(kBackslash, path.size() - 2);
  return last == TextView::npos ? path : path.substr(last + 1);
}

TextView GetFolderPath(TextView path) {
  const std::size_t last = path.rfind(kBackslash);
  return last == TextView::npos ? TextView() : path.substr(0, last + 1);
}

Text ShortenPath(TextView path) {
  const std::size_t tail = path.rfind(kBackslash);
  if (tail == TextView::npos) throw Failure{};
  const std::size_t start = Like(path, u"\\\\*") ? 2 : 0;
  const std::size_t root = path.find(kBackslash, start);
  const TextView head = root == TextView::npos ? TextView() : path.substr(0, root + 1);
  return Text(head) + u"...\\" + Text(path.substr(tail + 1));
}

Text GetDriveSpec(TextView path) {
  if (path.empty()) return GetSystemFolder().substr(0, 2);
  if (path.size() == 1) return Text(path) + u":";
  return Text(path.substr(0, 2));
}

Text AddBackslash(TextView path) {
  Text result(path);
  EnsureBackslash(result);
  return result;
}

void EnsureBackslash(Text& path) {
  if (!path.ends_with(kBackslash)) path.push_back(kBackslash);
}

void CreateFolderPath(const Text& folder) {
  if (host::Files().PathExists(folder)) return;
  const Text path = AddBackslash(folder);
  // The third character is taken to be the backslash behind a drive.
  for (std::size_t length = 3; length < path.size();) {
    length = path.find(kBackslash, length) + 1;
    host::Files().CreateFolder(path.substr(0, length));
  }
}

Text GetSystemFolder() { return Text(Trim(host::TheSystem().SystemFolder())); }

}  // namespace orvik::mdlSupport
