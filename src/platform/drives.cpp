#include "platform/drives.h"

#include "host/host.h"

namespace orvik::mdlSupport {

int GetDriveKind(const Text& drive) { return host::Files().DriveType(drive); }

std::vector<Text> ListDrives(std::int32_t kind) {
  std::vector<Text> drives;
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    const Text drive = {letter, u':'};
    const int found = GetDriveKind(drive);
    const bool wanted =
        kind < 1 ? found >= host::drive_type::kRemovable && found <= host::drive_type::kRamDisk
                 : found == kind;
    if (wanted) drives.push_back(drive);
  }
  return drives;
}

}  // namespace orvik::mdlSupport
