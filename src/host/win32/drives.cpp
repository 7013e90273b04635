// Drives.
#include "host/win32/ansi_text.h"
#include "host/win32/win32_file_system.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {
namespace {

// Some of the services want the closing backslash, and without it look at the current folder of the
// drive instead.
std::optional<std::string> RootPath(const Text& drive) {
  auto ansi = AnsiPath(drive);
  if (ansi && !ansi->ends_with('\\')) *ansi += '\\';
  return ansi;
}

}  // namespace

int Win32FileSystem::DriveType(const Text& drive) {
  const auto root = RootPath(drive);
  return root ? static_cast<int>(GetDriveTypeA(root->c_str())) : drive_type::kNoRoot;
}

std::optional<DiskSpace> Win32FileSystem::Space(const Text& path) {
  const auto root = RootPath(path);
  ULARGE_INTEGER for_caller;
  ULARGE_INTEGER total;
  ULARGE_INTEGER free;
  if (!root || !GetDiskFreeSpaceExA(root->c_str(), &for_caller, &total, &free)) return std::nullopt;
  return DiskSpace{total.QuadPart, free.QuadPart};
}

std::optional<Text> Win32FileSystem::VolumeLabel(const Text& drive) {
  const auto root = RootPath(drive);
  if (!root) return std::nullopt;
  char label[MAX_PATH + 1];
  if (GetVolumeInformationA(root->c_str(), label, sizeof label, nullptr, nullptr, nullptr, nullptr,
                            0)) {
    return FromAnsi(label);
  }
  // A letter that Wine was given while it ran is a drive of which nothing more is known.
  const bool is_drive = PathIsRootA(root->c_str()) && PathFileExistsA(root->c_str());
  return is_drive ? std::optional<Text>(Text()) : std::nullopt;
}

}  // namespace orvik::host::win32
