// The desktop's trash folder, as freedesktop.org describes it.
#pragma once

#include <string>

namespace orvik::host::posix {

// Moves a file, folder or link, given by its absolute path, to the trash: to the one in the user's
// home for things on the same disk, else to the one at the top of their own disk. It stays where it
// is, and the answer is false, when neither takes it; nothing is ever removed for good.
bool MoveToTrash(const std::string& path);

// A path as the trash's own notes spell it: everything but letters, digits and "/-_.~" as %XX.
std::string PercentEncoded(const std::string& path);

}  // namespace orvik::host::posix
