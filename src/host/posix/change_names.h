// What changes the names in folders: making, removing, moving.
#pragma once

#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// As FileSystem::CreateFolder, RemoveFolder, DeleteFile and MoveFile. A link is removed or moved
// itself, never what it leads to; a link to a folder is removed as a folder.
bool CreateFolderAt(PathFinder& finder, TextView path);
bool RemoveFolderAt(PathFinder& finder, TextView path);
bool DeleteFileAt(PathFinder& finder, TextView path);
bool MoveEntry(PathFinder& finder, TextView source, TextView target, bool replace);

// Renames and never replaces: fails with EEXIST when the target exists.
int RenameNew(const char* source, const char* target);

}  // namespace orvik::host::posix
