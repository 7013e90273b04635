// Copies of whole files.
#pragma once

#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// As FileSystem::CopyFile. An existing target keeps its identity: it is overwritten in place, also
// through a link. When the copy breaks off, no half target stays behind.
bool CopyOne(PathFinder& finder, TextView source, TextView target, bool fail_if_exists);

}  // namespace orvik::host::posix
