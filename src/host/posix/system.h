// The machine as the program knows machines.
#pragma once

#include <vector>

#include "host/posix/drive_map.h"
#include "host/system.h"

namespace orvik::host::posix {

class PosixSystem : public System {
 public:
  PosixSystem(std::vector<Text> environment, const DriveMap& drives, int code_page, int oem_page);

  std::optional<Text> EnvironmentEntry(int index) override;
  // The program is to take the ways of the NT line.
  int PlatformId() override { return 2; }
  // Below the Windows folder that the environment names.
  Text SystemFolder() override;
  Text OwnPath() override;
  MemoryStatus Memory() override;
  DateTime Now() override;
  std::uint32_t Ticks() override;
  const CodePage& AnsiPage() override { return ansi_; }
  const CodePage& OemPage() override { return oem_; }

 private:
  std::vector<Text> environment_;
  const DriveMap& drives_;
  const CodePage& ansi_;
  const CodePage& oem_;
};

}  // namespace orvik::host::posix
