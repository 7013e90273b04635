// Small files that are written as a whole.
#pragma once

#include <string_view>

#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// Gives a file this content, or makes it with it. The whole content comes into place at once, so
// nobody ever finds a half of it. A file that is replaced keeps its rights and attributes; a link
// to it stays a link. False, with everything as it was, for a folder, a file that is read-only or
// held, and where the disk refuses.
bool ReplaceContent(PathFinder& finder, TextView path, std::string_view bytes);

}  // namespace orvik::host::posix
