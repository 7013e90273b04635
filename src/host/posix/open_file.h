// Open files, and files that are held.
#pragma once

#include <memory>

#include "host/file_system.h"
#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// As FileSystem::Open.
//
// Linux has no open modes that shut others out. A file that is held (OpenMode::kHold) carries both
// locks that cooperating programs know: the one of flock and the one of fcntl. Whatever would
// write, replace, move or remove a file asks for both before. Reading doesn't ask: a hold allows
// it.
std::unique_ptr<File> OpenFile(PathFinder& finder, const Text& path, OpenMode mode);

// True when another program, or another open file of this one, holds this open file.
bool IsHeld(int fd);
// The same for a file that isn't open. One that may not even be opened counts as free.
bool IsHeld(const char* path);

}  // namespace orvik::host::posix
