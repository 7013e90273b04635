// The bytes of one open file into another.
#pragma once

#include <sys/stat.h>

namespace orvik::host::posix {

// Takes the room that a longer content needs before the old content is touched, so that a full disk
// leaves the target as it was. False when there isn't enough; a disk that can't do that isn't
// asked.
bool ReserveRoom(const struct stat& source_status, int target, const struct stat& target_status);

// Copies all that the source holds into a target that was just made or is to be overwritten, and
// makes it as long as the source. Holes of a source stay holes. False when the disk is full or
// anything else goes wrong; the target then holds a part.
bool CopyData(int source, const struct stat& source_status, int target,
              const struct stat& target_status);

}  // namespace orvik::host::posix
