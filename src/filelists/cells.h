// What a row of checksums shows of one file.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace orvik::mdlMain {

// The two cells of a file: checksum, "/", size in whole kilobytes. They differ in where the sign of
// a negative checksum stands: in front of the "x" in the view of one folder, behind it where two
// folders are compared. A checksum of 0 has no digits.
Text OneFolderCell(std::int32_t checksum, std::int32_t length);
Text TwoFolderCell(std::int32_t checksum, std::int32_t length);

}  // namespace orvik::mdlMain
