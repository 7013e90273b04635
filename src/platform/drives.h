// The drives of the machine.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvik::mdlSupport {

// The system's number for the kind of a drive such as "C:": host::drive_type.
int GetDriveKind(const Text& drive);

// The drives of one kind, such as "C:", from A to Z. A kind below 1 means all that are there, from
// removable drives to memory disks.
std::vector<Text> ListDrives(std::int32_t kind);

}  // namespace orvik::mdlSupport
