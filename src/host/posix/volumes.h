// Whole folders and disks: sizes, space, short names.
#pragma once

#include <cstdint>
#include <optional>

#include "host/file_system.h"
#include "host/posix/folder_reader.h"
#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// As FileSystem::FolderSize. Links to folders aren't followed, so that none is counted twice and a
// cycle ends; what vanishes meanwhile isn't counted.
std::optional<std::uint64_t> SizeOfFolder(PathFinder& finder, FolderReader& reader, TextView path);

// As FileSystem::Space.
std::optional<DiskSpace> SpaceAt(PathFinder& finder, TextView path);

}  // namespace orvik::host::posix
