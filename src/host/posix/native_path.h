// A path of Linux that knows where its drive ends.
#pragma once

#include <string>
#include <string_view>

namespace orvik::host::posix {

// The text is the drive's folder followed by "/" and a component for each level below. The folder
// "/" is kept as an empty text, so that joining needs no special case.
struct NativePath {
  std::string text;
  std::size_t root_length = 0;  // of the drive's folder, which is never respelled, moved or removed
  bool closed = false;          // a closing backslash: only a folder fits

  const char* c_str() const { return text.empty() ? "/" : text.c_str(); }
  bool IsRoot() const { return text.size() == root_length; }

  // The folder above, "" for "/". Not for a root.
  std::string Folder() const { return text.substr(0, text.rfind('/')); }
  // The last component. Not for a root.
  std::string_view Leaf() const { return std::string_view(text).substr(text.rfind('/') + 1); }
  // Puts another name in the place of the last component. Not for a root.
  void Rename(std::string_view leaf) { text.replace(text.rfind('/') + 1, std::string::npos, leaf); }
};

}  // namespace orvik::host::posix
