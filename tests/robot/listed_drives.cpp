#include "robot/listed_drives.h"

namespace orvik::robot {

namespace {

// Never opened: the drive's link is asked first.
constexpr wchar_t kSomeDevice[] = L"\\Device\\HarddiskVolume77";

}  // namespace

ListedDrives::ListedDrives() {
  const DWORD listed = GetLogicalDrives();
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    const Text drive = {letter, u':'};
    const Text root = drive + u"\\";
    const bool is_listed = (listed >> (letter - u'A') & 1U) != 0;
    if (is_listed || GetDriveTypeW(Wide(root)) == DRIVE_NO_ROOT_DIR) continue;
    if (DefineDosDeviceW(DDD_RAW_TARGET_PATH, Wide(drive), kSomeDevice) != 0) {
      added_.push_back(drive);
    }
  }
}

ListedDrives::~ListedDrives() {
  for (const Text& drive : added_) DefineDosDeviceW(DDD_REMOVE_DEFINITION, Wide(drive), nullptr);
}

}  // namespace orvik::robot
